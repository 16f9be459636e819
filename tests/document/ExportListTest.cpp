// SPDX-License-Identifier: MIT
#include "document/ExportList.h"

#include "support/Abilities.h"
#include "support/AllRows.h"
#include "support/EntriesFrom.h"
#include "support/MemorySettings.h"
#include "support/OrdinaryUser.h"
#include "support/ScriptedUser.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class ExportListTest : public testing::Test {
  protected:
    ExportListTest() {
        FillTable(Entries, {{EventTypes::Error, "one", "", ""}, {EventTypes::Info, "two", "", ""}});
        Rows = {{1, 0}, {0, 1}};
        State.CurrentLogbookFile = Folder.Write("lb_act.log", "the logbook");
        User.File = Folder / "list.csv";
    }

    ExportOutcome Export(Language language = {}) {
        return ExportList({Entries, Rows, State, Settings}, User, language, GoesOn);
    }
    std::string Exported(std::size_t type, Language language = {}) {
        User.FileType = type;
        EXPECT_EQ(Export(language), ExportOutcome::Exported);
        return FileContent(*User.File);
    }

    // No part of a file is left beside the others either.
    std::size_t FileCount() const {
        std::size_t count = 0;
        for ([[maybe_unused]] const auto& item : std::filesystem::directory_iterator(Folder.Path()))
            ++count;
        return count;
    }

    TemporaryFolder Folder;
    EntryTable Entries;
    LogbookRows Rows;
    LogbookState State;
    MemorySettings Store;
    Registry Settings{Store};
    ScriptedUser User;
    std::function<bool(double)> GoesOn = [](double) { return true; };
};

TEST_F(ExportListTest, CsvIsThatOfTheLanguagesSpreadsheets) {
    EXPECT_EQ(Exported(0), "\uFEFFindex,type,event,data,sender,name,time,icon,highlighted,comment\r\n"
                           "1,1,Info,two,,,04.01.2010 12:34:56,1,false,\r\n"
                           "0,3,Error,one,,,04.01.2010 12:34:56,15,true,\r\n");
    EXPECT_EQ(Exported(0, {Language::German}),
              "\uFEFFindex;type;event;data;sender;name;time;icon;highlighted;comment\r\n"
              "1;1;Info;two;;;04.01.2010 12:34:56;1;false;\r\n"
              "0;3;Error;one;;;04.01.2010 12:34:56;15;true;\r\n");
}

TEST_F(ExportListTest, OtherFormsAreJsonLinesAndHtml) {
    EXPECT_THAT(Exported(1), StartsWith("{\"index\":1,"));
    EXPECT_THAT(Exported(2), StartsWith("<!DOCTYPE html>\n<html lang=\"en\">"));
    EXPECT_THAT(Exported(2), HasSubstr("<title>lb_act</title>"));
    EXPECT_THAT(Exported(2, {Language::German}), HasSubstr("<td>Error, markiert</td>"));
}

TEST_F(ExportListTest, WithoutRowsThereIsAHeader) {
    Rows.clear();
    EXPECT_EQ(Exported(0), "\uFEFFindex,type,event,data,sender,name,time,icon,highlighted,comment\r\n");
}

TEST_F(ExportListTest, DialogBeginsWithTheLogbooksNameAndFolder) {
    Export();
    EXPECT_EQ(User.FilesToSave[0].Folder, Folder / "");
    EXPECT_EQ(User.FilesToSave[0].Name, "lb_act.csv");
    // Then with that of the last export.
    std::filesystem::create_directory(Folder / "lists");
    User.File = Folder / "lists/list.csv";
    Export();
    Export();
    EXPECT_EQ(User.FilesToSave[2].Folder, Folder / "lists/");
    // A logbook out of an archive lies in the temporary folder; its archive does not.
    Store.Values.clear();
    State.CurrentArchive = "/archives/case.qorvix";
    Export();
    EXPECT_EQ(User.FilesToSave[3].Folder, "/archives/");
}

TEST_F(ExportListTest, CancelledAndEndedExportsLeaveAllAsItWas) {
    Folder.Write("list.csv", "old");
    const std::size_t files = FileCount();
    GoesOn = [](double) { return false; };
    EXPECT_EQ(Export(), ExportOutcome::Ended);
    EXPECT_EQ(FileContent(Folder / "list.csv"), "old");
    GoesOn = [](double percent) { return percent < 100; };
    EXPECT_EQ(Export(), ExportOutcome::Ended);
    EXPECT_EQ(FileContent(Folder / "list.csv"), "old");
    User.File.reset();
    EXPECT_EQ(Export(), ExportOutcome::Cancelled);
    EXPECT_EQ(FileCount(), files);
    EXPECT_TRUE(User.Messages.empty());
    EXPECT_TRUE(Store.Values.empty());
}

TEST_F(ExportListTest, WithoutALogbookNothingIsAsked) {
    State.CurrentLogbookFile.clear();
    EXPECT_EQ(Export(), ExportOutcome::Cancelled);
    EXPECT_TRUE(User.FilesToSave.empty());
}

TEST_F(ExportListTest, LogbookAndArchiveAreNotReplaced) {
    State.CurrentArchive = Folder.Write("service1.zip", "the archive");
    const std::string other = Folder.Write("other.qorvix", "another archive");
    for (const std::string& file : {State.CurrentLogbookFile, State.CurrentArchive, other}) {
        const std::string before = FileContent(file);
        User.File = file;
        EXPECT_EQ(Export(), ExportOutcome::Failed) << file;
        EXPECT_EQ(FileContent(file), before);
    }
    EXPECT_EQ(User.Messages[0], "The list could not be exported (" + State.CurrentLogbookFile +
                                    ": the list would replace the file that it is made from)");
    Export({Language::German});
    EXPECT_EQ(User.Messages[3], "Die Liste konnte nicht exportiert werden (" + other +
                                    ": eine Liste ersetzt kein Archiv, keine Kommentare und keine Filter)");
}

TEST_F(ExportListTest, FailureIsToldWithItsReason) {
    NEEDS_PERMISSIONS();
    User.File = Folder / "no/such/list.csv";
    EXPECT_EQ(Export(), ExportOutcome::Failed);
    EXPECT_EQ(User.Messages[0],
              "The list could not be exported (" + *User.File + ": No such file or directory)");
    std::filesystem::permissions(Folder.Path(), std::filesystem::perms(0555));
    User.File = Folder / "list.csv";
    const OrdinaryUser ordinary;
    if (!ordinary.IsOrdinary())
        GTEST_SKIP() << "needs permissions that apply";
    EXPECT_EQ(Export({Language::German}), ExportOutcome::Failed);
    EXPECT_EQ(User.Messages[1],
              "Die Liste konnte nicht exportiert werden (" + *User.File + ": Keine Berechtigung)");
}

} // namespace
