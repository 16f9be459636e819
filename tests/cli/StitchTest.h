// SPDX-License-Identifier: MIT
#pragma once

#include "cli/RunProgram.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

// Events with these numbers, each with its own second.
inline std::string Events(int begin, int end) {
    std::vector<std::string> lines;
    for (int number = begin; number < end; ++number) {
        char stamp[32];
        std::snprintf(stamp, sizeof stamp, "04.01.2010 12:%02d:%02d", number / 60, number % 60);
        lines.push_back(Header("BERR:    " + std::to_string(number), stamp));
    }
    return Lines(lines);
}

// What tests of qorvix-cli stitch share: two exports, and names for the output.
class StitchTest : public testing::Test {
  protected:
    ProgramResult Run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "stitch");
        return RunCommandLineTool(arguments);
    }

    // Stitches and gives what was printed.
    std::string Stitch(const std::vector<std::string>& arguments, const std::string& errors = "") {
        const ProgramResult result = Run(arguments);
        EXPECT_EQ(result.ExitStatus, 0);
        EXPECT_EQ(result.Errors, errors);
        return result.Output;
    }

    // Fails in both languages with these messages, prints nothing, and writes nothing: neither where nothing
    // is yet nor over a file that is there.
    void ExpectFailure(const std::vector<std::string>& sources, const std::string& english,
                       const std::string& german) {
        for (const std::string& output : {Out, OutArchive})
            for (const bool isThere : {false, true})
                for (const bool isGerman : {false, true}) {
                    std::filesystem::remove(output);
                    if (isThere)
                        Folder.Write(output == Out ? "out.log" : "out.qorvix", "old");
                    const std::size_t files = CountFiles();
                    std::vector<std::string> arguments = sources;
                    arguments.insert(arguments.end(),
                                     {"--output", output, "--language", isGerman ? "de" : "en"});
                    const ProgramResult result = Run(arguments);
                    EXPECT_EQ(result.ExitStatus, 1);
                    EXPECT_EQ(result.Output, "");
                    EXPECT_EQ(result.Errors, "qorvix-cli: " + (isGerman ? german : english) + "\n");
                    EXPECT_EQ(FileContent(output), isThere ? "old" : "");
                    EXPECT_EQ(CountFiles(), files);
                    std::filesystem::remove(output);
                }
    }

    std::size_t CountFiles() const {
        std::size_t count = 0;
        for ([[maybe_unused]] const auto& item : std::filesystem::directory_iterator(Folder.Path()))
            ++count;
        return count;
    }

    TemporaryFolder Folder;
    const std::string Out = Folder / "out.log";
    const std::string OutArchive = Folder / "out.qorvix";
    const std::string Old = Folder.Write("old.log", Events(0, 30));
    const std::string New = Folder.Write("new.log", Events(15, 50).substr(20));
};
