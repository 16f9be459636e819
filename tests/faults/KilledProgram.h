// SPDX-License-Identifier: MIT
#pragma once

#include "faults/FaultTest.h"
#include "support/ZipReader.h"

#include <filesystem>

// What tests of killed programs share: an archive with an old comment, which is saved with a new one.
class KilledProgram : public FaultTest {
  protected:
    using Members = std::vector<std::pair<std::string, std::string>>;

    KilledProgram() {
        Empty();
        EXPECT_EQ(Pack("old", {}), GoodEnd);
        EXPECT_EQ(ReadZip(Archive), Content("old"));
        old_ = FileContent(Archive);
    }

    void Empty() const {
        std::filesystem::remove_all(Out);
        std::filesystem::create_directory(Out);
    }

    // The archive whose comment is "old", and nothing else.
    void PutOld() const {
        Empty();
        Folder.Write("out/a.qorvix", old_);
    }

    ProgramEnd Pack(const std::string& comment, const Fault& fault) {
        std::string errors;
        const std::string comments = Folder.Write("work/a.cmt", "[Comments]\r\n 1 " + comment + "\r\n");
        const ProgramEnd end =
            RunTool({"pack", LogFile, Archive, "--comments", comments, "--drop-comments"}, fault, errors);
        EXPECT_EQ(errors, "");
        return end;
    }

    static Members Content(const std::string& comment) {
        return {{"a.log", LogbookOf(2000)},
                {"a.fil", "[Filters]\r\nI|0||||1\r\n"},
                {"a.cmt", "[Comments]\r\n 1 " + comment + "\r\n"}};
    }

    // After a program was killed; `call` says where.
    void ExpectAWholeArchive(int call) {
        const Members members = ReadZip(Archive);
        EXPECT_TRUE(members == Content("old") || members == Content("new")) << call;
    }

    // The next saving works, and removes what was left.
    void ExpectToSaveAgain(int call) {
        EXPECT_EQ(Pack("next", {}), GoodEnd) << call;
        EXPECT_EQ(ReadZip(Archive), Content("next")) << call;
        EXPECT_EQ(NamesIn(Out), std::vector<std::string>{"a.qorvix"}) << call;
        EXPECT_EQ(NamesIn(Temp), std::vector<std::string>()) << call;
    }

    const std::string LogFile = Folder.Write("work/a.log", LogbookOf(2000));
    const std::string Out = Folder / "out";
    const std::string Archive = Folder / "out/a.qorvix";

  private:
    std::string old_;
};
