// SPDX-License-Identifier: MIT
#include "sources/LogbookArchive.h"

#include "comments/Comments.h"
#include "filter/FilterFile.h"
#include "filter/FilterText.h"
#include "sources/LogbookSource.h"
#include "support/Abilities.h"
#include "support/EntriesFrom.h"
#include "support/OrdinaryUser.h"
#include "support/ScriptedUser.h"
#include "support/SmallFiles.h"
#include "support/TemporaryFolder.h"
#include "support/ZipReader.h"
#include "support/ZipWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using testing::HasSubstr;

namespace {

using Members = std::vector<std::pair<std::string, std::string>>;
namespace fs = std::filesystem;

// Bytes that do not pack.
std::string Noise(std::size_t size) {
    std::mt19937 random(1);
    std::string noise(size, '\0');
    std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random()); });
    return noise;
}

// The mark of a temporary folder is none.
std::vector<std::string> FilesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& item : fs::directory_iterator(folder))
        if (item.path().filename() != TempFolderMark::FileName)
            names.push_back(item.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

class LogbookArchiveTest : public testing::Test {
  protected:
    LogbookArchiveTest() {
        FillTable(Entries, std::vector<TestEntry>(20, {EventTypes::Info, "a", "", ""}));
        Entries.SetComment(3, "oil, filter");
        Filters.resize(2);
        EXPECT_TRUE(ParseFilter("I|0||||1", Filters[0]));
        EXPECT_TRUE(ParseFilter("H|4|pump|||0", Filters[1]));
        fs::create_directory(Folder / "logs");
        fs::create_directory(Folder / "out");
        fs::create_directory(Folder / "tmp");
        Content.LogbookFile = Folder.Write("logs/a.log", "the logbook\r\n");
    }

    std::string Save(const std::string& path) {
        Content.Filters = Filters;
        return SaveLogbookArchive(path, Content, Temp, Language{Language::English}, Progress);
    }

    // Saving fails for this reason, and leaves the archive of that name and nothing else.
    void ExpectFailure(const std::string& reason) {
        const std::string path = Folder.Write("out/old.qorvix", "old");
        const fs::file_time_type written = fs::last_write_time(path);
        EXPECT_THAT(Save(path), HasSubstr(reason));
        EXPECT_EQ(FileContent(path), "old");
        EXPECT_EQ(fs::last_write_time(path), written);
        EXPECT_EQ(FilesIn(Folder / "out"), std::vector<std::string>{"old.qorvix"});
        EXPECT_EQ(FilesIn(Temp.Path()), std::vector<std::string>{});
    }

    TemporaryFolder Folder;
    TempFolder Temp{fs::path(Folder.Path())};
    EntryTable Entries;
    CodePage Code;
    std::vector<FilterDefinition> Filters;
    ArchiveContent Content{.LogbookFile = "",
                           .LogbookStamp = std::nullopt,
                           .Filters = {},
                           .Entries = Entries,
                           .FileCodePage = Code};
    PackingProgress Progress;
};

} // namespace

TEST_F(LogbookArchiveTest, HoldsThreeMembersOfItsOwnBaseName) {
    const std::string bytes = Noise(100000) + std::string(100000, ' ') + std::string("\r\n\0\x1A\xFF", 5);
    Folder.Write("logs/a.log", bytes);
    EXPECT_EQ(Save(Folder / "out/case 7.v2.qorvix"), "");
    const Members members = ReadZip(Folder / "out/case 7.v2.qorvix");
    ASSERT_EQ(members.size(), 3U);
    EXPECT_EQ(members[0].first, "case 7.v2.log");
    EXPECT_TRUE(members[0].second == bytes);
    EXPECT_EQ(members[1],
              (Members::value_type{"case 7.v2.fil", "[Filters]\r\nI|0||||1\r\nH|4|pump|||0\r\n"}));
    EXPECT_EQ(members[2], (Members::value_type{"case 7.v2.cmt", "[Comments]\r\n 3 \"oil, filter\"\r\n"}));
    EXPECT_EQ(FileContent(Folder / "logs/a.log"), bytes);
    EXPECT_EQ(FilesIn(Folder / "out"), std::vector<std::string>{"case 7.v2.qorvix"});
    EXPECT_EQ(FilesIn(Temp.Path()), std::vector<std::string>{});
}

TEST_F(LogbookArchiveTest, OpensAgainAsItWasSaved) {
    for (const std::string base : {"a", "case.v2", "K\xC3\xBChlung \xE6\x97\xA5", "", "no extension"}) {
        const std::string path = Folder / ("out/" + base + ".qorvix");
        EXPECT_EQ(Save(path), "");
        ScriptedUser user;
        user.Answers = {UserInterface::Answer::Yes};
        const auto source = ResolveSource(path, Temp, user, {});
        ASSERT_TRUE(source.has_value());
        EXPECT_EQ(source->Name, base.substr(0, base.find('.')));
        EXPECT_EQ(FileContent(source->LogbookFile), "the logbook\r\n") << base;
        EXPECT_EQ(FileContent(source->FilterFile), "[Filters]\r\nI|0||||1\r\nH|4|pump|||0\r\n");
        EntryTable again;
        FillTable(again, std::vector<TestEntry>(20, {EventTypes::Info, "a", "", ""}));
        CommentLogbook(source->CommentsFile, again, Code);
        EXPECT_EQ(again.Comments(), Entries.Comments());
    }
}

TEST_F(LogbookArchiveTest, EmptyLogbookWithoutCommentsAndFilters) {
    Folder.Write("logs/a.log", "");
    Entries.SetComment(3, "");
    Filters.clear();
    EXPECT_EQ(Save(Folder / "out/a.qorvix"), "");
    EXPECT_EQ(ReadZip(Folder / "out/a.qorvix"),
              (Members{{"a.log", ""}, {"a.fil", "[Filters]\r\n"}, {"a.cmt", "[Comments]\r\n"}}));
}

TEST_F(LogbookArchiveTest, ReplacesTheArchiveThatTheLogbookCameFrom) {
    const std::string path = Folder / "out/own.qorvix";
    const std::string log = Noise(50000);
    WriteZip(path, {{"own.log", log}, {"own.cmt", "[Comments]\r\n 1 old\r\n"}});
    ScriptedUser user;
    const auto source = ResolveSource(path, Temp, user, {});
    Content.LogbookFile = source->LogbookFile;
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Save(path), "");
        const Members members = ReadZip(path);
        ASSERT_EQ(members.size(), 3U);
        EXPECT_TRUE(members[0].second == log);
        EXPECT_EQ(members[2].second, "[Comments]\r\n 3 \"oil, filter\"\r\n");
    }
    // The files of the logbook that is shown are as they were.
    EXPECT_EQ(FilesIn(Temp.Path()), (std::vector<std::string>{"own.cmt", "own.log"}));
    EXPECT_EQ(FileContent(Temp.Path() / "own.cmt"), "[Comments]\r\n 1 old\r\n");
}

TEST_F(LogbookArchiveTest, LogbookThatIsGoneFails) {
    fs::remove(Content.LogbookFile);
    ExpectFailure(Content.LogbookFile + ": No such file or directory");
    Content.LogbookFile = Folder / "logs";
    ExpectFailure(Content.LogbookFile + ": Is a directory");
}

TEST_F(LogbookArchiveTest, LogbookThatIsNotAsItWasReadFails) {
    std::error_code error;
    Content.LogbookStamp = StampOf(Content.LogbookFile, error);
    EXPECT_EQ(Save(Folder / "out/a.qorvix"), "");
    fs::remove(Folder / "out/a.qorvix");
    Progress = [](double) { ADD_FAILURE() << "packed, though it is known to be in vain"; };
    Folder.Write("logs/a.log", "the logbook\r\nand more\r\n");
    ExpectFailure("the logbook file was changed meanwhile");
    Folder.Write("logs/a.log", "THE LOGBOOK\r\n");
    fs::last_write_time(Content.LogbookFile, Content.LogbookStamp->Written + std::chrono::seconds(1));
    ExpectFailure("the logbook file was changed meanwhile");
}

TEST_F(LogbookArchiveTest, LogbookThatChangesWhileItIsPackedFails) {
    Folder.Write("logs/a.log", Noise(3000000));
    Progress = [&](double percent) {
        if (percent > 20)
            fs::resize_file(Content.LogbookFile, 3000001);
    };
    ExpectFailure("the logbook file was changed meanwhile");
}

TEST_F(LogbookArchiveTest, LogbookThatIsRemovedWhileItIsPackedFails) {
    NEEDS_REMOVING_OPEN_FILES();
    Folder.Write("logs/a.log", Noise(3000000));
    Progress = [&](double percent) {
        if (percent > 20)
            fs::remove(Content.LogbookFile);
    };
    ExpectFailure("the logbook file was changed meanwhile");
}

TEST_F(LogbookArchiveTest, LogbookThatIsCutShortWhileItIsPackedFails) {
    Folder.Write("logs/a.log", Noise(3000000));
    Progress = [&](double percent) {
        if (percent > 20)
            fs::resize_file(Content.LogbookFile, 1000);
    };
    ExpectFailure("the logbook file was changed meanwhile");
}

TEST_F(LogbookArchiveTest, ArchiveThatChangesWhileItIsPackedIsNotReplaced) {
    Folder.Write("logs/a.log", Noise(3000000));
    const std::string path = Folder / "out/a.qorvix";
    Progress = [&](double percent) {
        if (percent > 20)
            Folder.Write("out/a.qorvix", "of another copy");
    };
    for (int already = 0; already < 2; ++already) {
        if (already != 0)
            Folder.Write("out/a.qorvix", "old");
        EXPECT_EQ(Save(path), "the archive was changed meanwhile");
        EXPECT_EQ(FileContent(path), "of another copy");
        EXPECT_EQ(FilesIn(Folder / "out"), std::vector<std::string>{"a.qorvix"});
        fs::remove(path);
    }
    EXPECT_EQ(SaveLogbookArchive(path, Content, Temp, Language{Language::German}, Progress),
              "das Archiv wurde inzwischen geändert");
}

TEST_F(LogbookArchiveTest, FullDiskFailsWithTheSystemsReason) {
    NEEDS_FILE_SIZE_LIMIT();
    Folder.Write("logs/a.log", Noise(1000000));
    const SmallFiles limit(300000);
    double last = 100;
    Progress = [&](double percent) { last = percent; };
    ExpectFailure("File too large");
    EXPECT_EQ(last, 0);
}

TEST_F(LogbookArchiveTest, FullTemporaryFolderFailsWithTheSystemsReason) {
    NEEDS_FILE_SIZE_LIMIT();
    Entries.SetComment(5, Noise(200000));
    const SmallFiles limit(100000);
    ExpectFailure("File too large");
}

TEST_F(LogbookArchiveTest, ArchiveThatCannotBePutInItsPlaceFails) {
    fs::create_directory(Folder / "out/folder.qorvix");
    EXPECT_EQ(Save(Folder / "out/folder.qorvix"), "Is a directory");
    EXPECT_EQ(Save(Folder / "out/missing/a.qorvix"), "No such file or directory");
    EXPECT_EQ(Save(Content.LogbookFile + "/a.qorvix"), BehindAFileText);
    EXPECT_EQ(FilesIn(Folder / "out"), std::vector<std::string>{"folder.qorvix"});
}

TEST(LogbookArchivePermissions, FolderWithoutWritePermissionFails) {
    NEEDS_PERMISSIONS();
    const OrdinaryUser user;
    if (!user.IsOrdinary())
        GTEST_SKIP() << "permissions do not hold for this user";
    const TemporaryFolder folder;
    const TempFolder temp{fs::path(folder.Path())};
    EntryTable entries;
    const CodePage code;
    fs::create_directory(folder / "out");
    const std::string path = folder.Write("out/old.qorvix", "old");
    fs::permissions(folder / "out", fs::perms(0555));
    const ArchiveContent content{.LogbookFile = folder.Write("a.log", "text"),
                                 .LogbookStamp = std::nullopt,
                                 .Filters = {},
                                 .Entries = entries,
                                 .FileCodePage = code};
    EXPECT_EQ(SaveLogbookArchive(path, content, temp, {}), "Permission denied");
    EXPECT_EQ(FileContent(path), "old");
    fs::permissions(folder / "a.log", fs::perms(0));
    EXPECT_EQ(SaveLogbookArchive(folder / "b.qorvix", content, temp, {}),
              folder / "a.log" + ": Permission denied");
    fs::permissions(folder / "out", fs::perms(0755));
    EXPECT_EQ(FilesIn(folder / "out"), std::vector<std::string>{"old.qorvix"});
}

TEST_F(LogbookArchiveTest, NeverReplacesTheLogbookItself) {
    NEEDS_LINKS();
    fs::create_symlink("../logs/a.log", Folder / "out/link.qorvix");
    fs::create_hard_link(Content.LogbookFile, Folder / "out/same.qorvix");
    for (const std::string& path : {Content.LogbookFile, Folder / "logs/../logs/a.log",
                                    Folder / "out/link.qorvix", Folder / "out/same.qorvix"})
        EXPECT_EQ(Save(path), "the archive would replace the logbook file itself") << path;
    EXPECT_EQ(FileContent(Content.LogbookFile), "the logbook\r\n");
}

TEST_F(LogbookArchiveTest, NeverLiesInTheTemporaryFolder) {
    NEEDS_LINKS();
    fs::create_symlink(Temp.Path(), Folder / "link");
    for (const std::string& path : {(Temp.Path() / "a.qorvix").string(), Folder / "link/a.qorvix"})
        EXPECT_EQ(Save(path), "what lies in this folder is deleted when the program ends") << path;
    EXPECT_EQ(FilesIn(Temp.Path()), std::vector<std::string>{});
}

TEST_F(LogbookArchiveTest, WithoutATemporaryFolderNothingIsSaved) {
    const TempFolder none(fs::path(Folder.Path()) / "missing");
    EXPECT_EQ(SaveLogbookArchive(Folder / "out/a.qorvix", Content, none, {Language::German}),
              "es gibt keinen temporären Ordner");
    EXPECT_EQ(FilesIn(Folder / "out"), std::vector<std::string>{});
}

TEST_F(LogbookArchiveTest, LinkIsFollowedAndPermissionsStay) {
    NEEDS_LINKS();
    const std::string path = Folder.Write("out/a.qorvix", "old");
    fs::permissions(path, fs::perms(0640));
    fs::create_symlink("a.qorvix", Folder / "out/link.qorvix");
    EXPECT_EQ(Save(Folder / "out/link.qorvix"), "");
    EXPECT_TRUE(fs::is_symlink(Folder / "out/link.qorvix"));
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0640));
    ASSERT_EQ(ReadZip(path).size(), 3U);
    EXPECT_EQ(ReadZip(path)[0].first, "link.log");
}

TEST_F(LogbookArchiveTest, NewArchiveHasThePermissionsOfAnyNewFile) {
    NEEDS_PERMISSIONS();
    EXPECT_EQ(Save(Folder / "out/a.qorvix"), "");
    EXPECT_EQ(fs::status(Folder / "out/a.qorvix").permissions(),
              fs::status(Content.LogbookFile).permissions());
}

TEST_F(LogbookArchiveTest, WhatWouldNotOpenAgainIsNotSaved) {
    fs::resize_file(Content.LogbookFile, (std::uintmax_t{4} << 30U) + 1);
    ExpectFailure("a member is larger than 4 GiB");
    fs::resize_file(Content.LogbookFile, 70U << 20U);
    ExpectFailure("a member claims more than a thousand times its packed size");
    Folder.Write("logs/a.log", "the logbook\r\n");
    Entries.SetComment(4, std::string(CommentsFileBounds.Line, 'x'));
    ExpectFailure("comments: a line is too long");
    Entries.SetComment(4, "");
    Filters.resize(FilterFileBounds::Filters + 1);
    ExpectFailure("filters: the file has too many lines");
}

TEST_F(LogbookArchiveTest, TellsItsProgress) {
    Folder.Write("logs/a.log", Noise(3000000));
    std::vector<double> told;
    Progress = [&](double percent) { told.push_back(percent); };
    EXPECT_EQ(Save(Folder / "out/a.qorvix"), "");
    ASSERT_GT(told.size(), 20U);
    EXPECT_EQ(told.front(), 0);
    EXPECT_EQ(told.back(), 0);
    told.pop_back();
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_EQ(told.back(), 100);
}

TEST_F(LogbookArchiveTest, LossesAreNamedBeforehand) {
    Content.Filters = Filters;
    EXPECT_EQ(TextsThatLose(Content, {}), "");
    Entries.SetComment(7, "\xE6\x97\xA5");
    EXPECT_EQ(TextsThatLose(Content, {}),
              "Entries whose comments have characters that the archive cannot hold: 7");
    Filters[1].StringFilter = "\xE6\x97\xA5";
    Entries.SetComment(12, "\xC5\x99");
    EXPECT_EQ(TextsThatLose(Content, {Language::German}),
              "Einträge mit Zeichen im Kommentar, die das Archiv nicht aufnehmen kann: 7, 12\r\n"
              "Filter mit Zeichen, die das Archiv nicht aufnehmen kann: 2");
    for (EntryNumber number = 5; number < 15; ++number)
        Entries.SetComment(number, "\xC5\x99");
    EXPECT_THAT(TextsThatLose(Content, {}), HasSubstr(": 5, 6, 7, 8, 9, 10, 11, 12, 13, 14\r\n"));
    Entries.SetComment(19, "\xC5\x99");
    EXPECT_THAT(TextsThatLose(Content, {}), HasSubstr(": 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, …\r\n"));
}
