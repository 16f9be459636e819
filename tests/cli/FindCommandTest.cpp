// SPDX-License-Identifier: MIT
#include "cli/RunProgram.h"
#include "support/Abilities.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class FindCommand : public testing::Test {
  protected:
    FindCommand()
        : File(Folder.Write("a.log", Lines({Header("BERR:    K\xFChlung ERR 12"), Header("RESET:"),
                                            Header("BERR:    K\xDCHLUNG"), Header("BERR:    error")}))) {}

    // The index of each row printed, after a search with these arguments.
    std::vector<int> Find(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"find", File});
        const ProgramResult result = RunCommandLineTool(arguments);
        EXPECT_EQ(result.Errors, "");
        std::vector<int> found;
        std::istringstream stream(result.Output);
        for (std::string line; std::getline(stream, line);)
            found.push_back(nlohmann::json::parse(line)["index"]);
        EXPECT_EQ(result.ExitStatus, found.empty() ? 1 : 0);
        return found;
    }

    TemporaryFolder Folder;
    std::string File;
};

} // namespace

TEST_F(FindCommand, PrintsTheMatchingRowsInListOrder) {
    EXPECT_THAT(Find({"kühl"}), ElementsAre(0, 2));
    EXPECT_THAT(Find({"err"}), ElementsAre(0, 3));
    EXPECT_THAT(Find({"restart"}), ElementsAre(1));
    EXPECT_THAT(Find({""}), ElementsAre(0, 1, 2, 3));
}

TEST_F(FindCommand, OptionsNarrowTheSearch) {
    EXPECT_THAT(Find({"kühl", "--case-sensitive"}), IsEmpty());
    EXPECT_THAT(Find({"Kühl", "--case-sensitive"}), ElementsAre(0));
    EXPECT_THAT(Find({"err", "--whole-word"}), ElementsAre(0));
    EXPECT_THAT(Find({"ERR", "--whole-word", "--case-sensitive"}), ElementsAre(0));
    EXPECT_THAT(Find({"12", "--whole-word", "--whole-word"}), ElementsAre(0));
}

TEST_F(FindCommand, NothingFoundIsStatusOne) {
    const ProgramResult result = RunCommandLineTool({"find", File, "2010"});
    EXPECT_EQ(result.ExitStatus, 1);
    EXPECT_EQ(result.Output, "");
    EXPECT_EQ(result.Errors, "");
    EXPECT_THAT(RunCommandLineTool({"find", "--help"}).Output, HasSubstr("exit status is 1"));
}

TEST_F(FindCommand, FiltersComeBeforeTheSearch) {
    const std::string filters = Folder.Write("b.fil", "[Filters]\r\nI|0||||1\r\nX|0|12|||1\r\n");
    EXPECT_THAT(Find({"err", "--filters", filters}), ElementsAre(3));
}

TEST_F(FindCommand, FormIsThatOfAnExport) {
    const std::string output = Folder / "list.csv";
    for (const char* text : {"restart", "no such text"}) {
        const ProgramResult result =
            RunCommandLineTool({"find", File, text, "--format", "csv", "--output", output});
        EXPECT_EQ(result.ExitStatus, std::string(text) == "restart" ? 0 : 1);
        EXPECT_EQ(result.Output, "");
        EXPECT_EQ(FileContent(output),
                  std::string("index,type,event,data,sender,name,time,icon,highlighted,comment\r\n") +
                      (std::string(text) == "restart" ? "1,7,Restart,,,,04.01.2010 12:34:56.789,8,false,\r\n"
                                                      : ""));
    }
}

TEST_F(FindCommand, WrongUsageIsStatusTwo) {
    std::vector<std::vector<std::string>> wrong{
        {"find"}, {"find", File}, {"find", File, "a", "--output", ""}};
    if (NamesHoldAnyByte)
        wrong.push_back({"find", File, "\xFC"});
    for (const std::vector<std::string>& arguments : wrong) {
        const ProgramResult result = RunCommandLineTool(arguments);
        EXPECT_EQ(result.ExitStatus, 2);
        EXPECT_EQ(result.Output, "");
        EXPECT_NE(result.Errors, "");
    }
}

TEST_F(FindCommand, LogbookThatCannotBeReadIsTold) {
    const ProgramResult result = RunCommandLineTool({"find", Folder / "missing.log", "a"});
    EXPECT_EQ(result.ExitStatus, 1);
    EXPECT_THAT(result.Errors, HasSubstr("Error opening logbook file"));
}
