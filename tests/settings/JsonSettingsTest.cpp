// SPDX-License-Identifier: MIT
#include "settings/JsonSettings.h"

#include "base/FileLock.h"
#include "settings/Registry.h"
#include "support/OddFiles.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class JsonSettingsTest : public testing::Test {
  protected:
    std::string File() const { return Folder / "Qorvix.json"; }

    TemporaryFolder Folder;
    JsonSettings Store{File()};
    Registry Settings{Store};
};

void WriteNumber(const std::string& file, const std::string& name, std::int32_t number) {
    JsonSettings store(file);
    Registry(store).WriteSetting(name, number, SettingType::Integer);
}

std::int32_t ReadNumber(const std::string& file, const std::string& name) {
    JsonSettings store(file);
    return Registry(store).ReadSettingLong(name, -1);
}

} // namespace

TEST_F(JsonSettingsTest, ObjectsAreKeys) {
    Settings.WriteSetting("DialogLanguage", 1, SettingType::Integer);
    Settings.WriteFilterSetting("Filter1", std::string("I|0||||1"), SettingType::Text);
    EXPECT_EQ(FileContent(File()), "{\n"
                                   "  \"DialogLanguage\": 1,\n"
                                   "  \"Logbook\": {\n"
                                   "    \"Filters\": {\n"
                                   "      \"Filter1\": \"I|0||||1\"\n"
                                   "    }\n"
                                   "  }\n"
                                   "}\n");
}

TEST_F(JsonSettingsTest, FoldersAreMade) {
    const std::string file = Folder / "a/b/Qorvix.json";
    WriteNumber(file, "A", 5);
    EXPECT_EQ(ReadNumber(file, "A"), 5);
}

TEST_F(JsonSettingsTest, OtherProgramsValuesAreSeenAtOnce) {
    EXPECT_EQ(Settings.ReadSettingLong("A", 0), 0);
    WriteNumber(File(), "A", 5);
    EXPECT_EQ(Settings.ReadSettingLong("A", 0), 5);
    WriteNumber(File(), "A", 6);
    EXPECT_EQ(Settings.ReadSettingLong("A", 0), 6);
    std::filesystem::remove(File());
    EXPECT_EQ(Settings.ReadSettingLong("A", 0), 0);
}

TEST_F(JsonSettingsTest, DamagedFileReadsAsEmptyAndIsKept) {
    std::string kept = ".damaged";
    int number = 0;
    for (const std::string& content :
         {std::string("{ \"DialogLanguage\": "), std::string("[1]"), std::string("5"),
          std::string("\xFF\xFE"), std::string(100000, '['), std::string("{\"a\":1} rest")}) {
        Folder.Write("Qorvix.json", content);
        EXPECT_EQ(ReadNumber(File(), "DialogLanguage"), -1);
        EXPECT_EQ(FileContent(File()), content);
        WriteNumber(File(), "DialogLanguage", 1);
        EXPECT_EQ(ReadNumber(File(), "DialogLanguage"), 1);
        EXPECT_EQ(FileContent(File() + kept), content);
        kept = ".damaged." + std::to_string(++number);
    }
}

TEST_F(JsonSettingsTest, ValuesOfOtherKindsReadAsDefaultAndStay) {
    Folder.Write("Qorvix.json", R"({"A": 1.5, "B": true, "C": null, "D": 2147483648, "E": -2147483648,
                                    "F": -2147483649, "G": [1], "H": {"x": 1}, "I": 18446744073709551615,
                                    "J": 2147483647})");
    for (const char* name : {"A", "B", "C", "D", "F", "G", "H", "I"})
        EXPECT_EQ(Settings.ReadSettingLong(name, 7), 7) << name;
    EXPECT_EQ(Settings.ReadSettingLong("E", 7), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Settings.ReadSettingLong("J", 7), std::numeric_limits<std::int32_t>::max());
    WriteNumber(File(), "New", 1);
    const auto content = nlohmann::json::parse(FileContent(File()));
    EXPECT_EQ(content["A"], 1.5);
    EXPECT_EQ(content["G"].size(), 1U);
}

TEST_F(JsonSettingsTest, ValueDoesNotReplaceAKey) {
    Settings.WriteLogbookSetting("A", 5, SettingType::Integer);
    Settings.WriteSetting("Logbook", 1, SettingType::Integer);
    EXPECT_EQ(Settings.ReadLogbookSettingLong("A", 0), 5);
}

TEST_F(JsonSettingsTest, ValueInTheWayOfAKeyGivesWay) {
    for (const char* content :
         {R"({"Logbook": null})", R"({"Logbook": 5})", R"({"Logbook": {"Filters": 5}})"}) {
        Folder.Write("Qorvix.json", content);
        Settings.DeleteFilterKey();
        Settings.WriteFilterSetting("A", 7, SettingType::Integer);
        EXPECT_EQ(Settings.ReadFilterSettingLong("A", 0), 7) << content;
    }
}

TEST_F(JsonSettingsTest, FolderInThePlaceOfTheFileReadsAsEmpty) {
    std::filesystem::create_directory(File());
    EXPECT_EQ(Settings.ReadSettingLong("A", 3), 3);
    Settings.WriteSetting("A", 5, SettingType::Integer);
    EXPECT_TRUE(std::filesystem::is_directory(File()));
}

TEST_F(JsonSettingsTest, NestingOfAnyDepthIsDamage) {
    constexpr int Depth = 1000000;
    const auto repeated = [](std::string_view text) {
        std::string all;
        for (int i = 0; i < Depth; ++i)
            all += text;
        return all;
    };
    for (const std::string& content :
         {repeated("["), repeated("{\"a\":"), repeated("[1,"), repeated("[") + repeated("]"),
          "{\"DialogLanguage\": 5, \"a\": " + repeated("[") + repeated("]") + "}"}) {
        Folder.Write("Qorvix.json", content);
        EXPECT_EQ(ReadNumber(File(), "DialogLanguage"), -1);
        WriteNumber(File(), "DialogLanguage", 1);
        EXPECT_EQ(ReadNumber(File(), "DialogLanguage"), 1);
    }
}

TEST_F(JsonSettingsTest, BracketsInTextsDoNotNest) {
    const std::string text = std::string(100, '[') + "\"\\" + std::string(100, '{');
    Settings.WriteSetting("A", text, SettingType::Text);
    Settings.WriteSetting(text, 5, SettingType::Integer);
    JsonSettings anew(File());
    EXPECT_EQ(Registry(anew).ReadSettingString("A", ""), text);
    EXPECT_EQ(Registry(anew).ReadSettingLong(text, 0), 5);
    EXPECT_FALSE(std::filesystem::exists(File() + ".damaged"));
}

TEST_F(JsonSettingsTest, FileThatNoSettingsMakeIsNeitherReadNorReplaced) {
    Folder.Write("Qorvix.json", "{\"A\": 5}");
    std::filesystem::resize_file(File(), (std::uintmax_t{256} << 20U) + 1);
    EXPECT_EQ(ReadNumber(File(), "A"), -1);
    WriteNumber(File(), "A", 6);
    EXPECT_EQ(std::filesystem::file_size(File()), (std::uintmax_t{256} << 20U) + 1);
}

TEST_F(JsonSettingsTest, FileIsNotMadeLargerThanOneThatIsRead) {
    WriteNumber(File(), "A", 5);
    Settings.WriteSetting("B", std::string(256U << 20U, 'x'), SettingType::Text);
    WriteNumber(File(), "C", 6);
    EXPECT_EQ(FileContent(File()), "{\n  \"A\": 5,\n  \"C\": 6\n}\n");
}

TEST_F(JsonSettingsTest, WhatIsNoFileReadsAsEmptyAndIsNotReplaced) {
    MakePipe(Folder, "pipe");
    std::filesystem::permissions(Folder.Path(), std::filesystem::perms::all);
    // Whom no device belongs to, whatever is done to it.
    const OrdinaryUser user;
    ASSERT_TRUE(user.IsOrdinary());
    for (const char* target : {"/dev/null", "/dev/zero", "pipe"}) {
        std::filesystem::remove(File());
        std::filesystem::create_symlink(target, File());
        EXPECT_EQ(ReadNumber(File(), "A"), -1) << target;
        WriteNumber(File(), "A", 5);
        EXPECT_EQ(ReadNumber(File(), "A"), -1) << target;
        EXPECT_EQ(std::filesystem::read_symlink(File()), target);
        EXPECT_FALSE(std::filesystem::is_regular_file(File())) << target;
    }
    EXPECT_FALSE(std::filesystem::exists(File() + ".damaged"));

    std::filesystem::remove(File());
    std::filesystem::rename(Folder / "pipe", File());
    EXPECT_EQ(ReadNumber(File(), "A"), -1);
    WriteNumber(File(), "A", 5);
    EXPECT_TRUE(std::filesystem::is_fifo(File()));
}

TEST_F(JsonSettingsTest, LinkToAFileIsFollowed) {
    Folder.Write("other.json", "{\"A\": 5}");
    std::filesystem::create_symlink("other.json", File());
    EXPECT_EQ(ReadNumber(File(), "A"), 5);
    WriteNumber(File(), "A", 6);
    EXPECT_TRUE(std::filesystem::is_symlink(File()));
    EXPECT_EQ(ReadNumber(Folder / "other.json", "A"), 6);
}

// As by a process that was stopped while it had the lock. Takes the seconds that are waited for it.
TEST_F(JsonSettingsTest, LockThatIsNeverGivenBackStopsNobodyForEver) {
    const FileLock held(File() + ".lock");
    ASSERT_TRUE(held.IsHeld());
    WriteNumber(File(), "A", 5);
    EXPECT_EQ(ReadNumber(File(), "A"), 5);
}

TEST_F(JsonSettingsTest, WithoutAFileToLockNothingIsWritten) {
    WriteNumber(File(), "A", 5);
    const std::string lock = File() + ".lock";
    std::filesystem::remove(lock);
    MakePipe(Folder, "Qorvix.json.lock");
    WriteNumber(File(), "A", 6);
    EXPECT_EQ(ReadNumber(File(), "A"), 5);
    EXPECT_TRUE(std::filesystem::is_fifo(lock));
    EXPECT_EQ(std::filesystem::status(lock).permissions(), std::filesystem::perms(0600));
}

TEST_F(JsonSettingsTest, LinkInPlaceOfTheLockIsNotFollowed) {
    WriteNumber(File(), "A", 5);
    const std::string secret = Folder.Write("secret", "secret");
    std::filesystem::permissions(secret, std::filesystem::perms(0600));
    std::filesystem::remove(File() + ".lock");
    std::filesystem::create_symlink(secret, File() + ".lock");
    WriteNumber(File(), "A", 6);
    EXPECT_EQ(ReadNumber(File(), "A"), 5);
    EXPECT_EQ(FileContent(secret), "secret");
    EXPECT_EQ(std::filesystem::status(secret).permissions(), std::filesystem::perms(0600));
}

TEST_F(JsonSettingsTest, DamagedFileIsKeptBesideALinkThatLeadsNowhere) {
    Folder.Write("Qorvix.json", "{bad");
    std::filesystem::create_symlink("nowhere", File() + ".damaged");
    WriteNumber(File(), "A", 5);
    EXPECT_EQ(ReadNumber(File(), "A"), 5);
    EXPECT_EQ(FileContent(File() + ".damaged.1"), "{bad");
    EXPECT_TRUE(std::filesystem::is_symlink(File() + ".damaged"));
    EXPECT_FALSE(std::filesystem::exists(Folder / "nowhere"));
}

TEST_F(JsonSettingsTest, EmptyFileIsNoDamage) {
    Folder.Write("Qorvix.json", "");
    WriteNumber(File(), "A", 5);
    EXPECT_EQ(ReadNumber(File(), "A"), 5);
    EXPECT_FALSE(std::filesystem::exists(File() + ".damaged"));
}

TEST_F(JsonSettingsTest, InvalidUtf8DoesNotBreakTheFile) {
    Settings.WriteSetting("A", std::string("a\xFFz"), SettingType::Text);
    EXPECT_EQ(ReadNumber(File(), "B"), -1);
    EXPECT_EQ(Settings.ReadSettingString("A", ""), "a\xEF\xBF\xBDz");
}

TEST_F(JsonSettingsTest, FullDiskLeavesTheOldFile) {
    WriteNumber(File(), "A", 5);
    const std::string before = FileContent(File());
    // A process of its own, which may write no file longer than a few bytes.
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{4, 4};
        setrlimit(RLIMIT_FSIZE, &limit);
        JsonSettings store(File());
        const bool changed =
            store.Change({{SettingsChange::Kind::WriteValue, std::string(ApplicationKey), "A", 6}});
        _exit(changed ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_EQ(FileContent(File()), before);
}

TEST_F(JsonSettingsTest, FolderThatCannotBeMadeFailsTheWriteOnly) {
    Folder.Write("blocked", "");
    const std::string file = Folder / "blocked/Qorvix.json";
    WriteNumber(file, "A", 5);
    EXPECT_EQ(ReadNumber(file, "A"), -1);
}

TEST_F(JsonSettingsTest, TwoProcessesLoseNoValue) {
    constexpr int Count = 1000;
    pid_t children[2] = {};
    for (int process = 0; process < 2; ++process) {
        children[process] = fork();
        if (children[process] == 0) {
            for (int i = 0; i < Count; ++i)
                WriteNumber(File(), "P" + std::to_string(process) + "." + std::to_string(i), i);
            _exit(0);
        }
    }
    for (const pid_t child : children)
        waitpid(child, nullptr, 0);
    int lost = 0;
    for (int process = 0; process < 2; ++process)
        for (int i = 0; i < Count; ++i)
            lost +=
                Settings.ReadSettingLong("P" + std::to_string(process) + "." + std::to_string(i), -1) != i;
    EXPECT_EQ(lost, 0);
}

TEST_F(JsonSettingsTest, KilledWriterLeavesAWholeFile) {
    WriteNumber(File(), "First", 1);
    int killed = 0;
    for (int round = 0; round < 30; ++round) {
        const pid_t child = fork();
        if (child == 0) {
            for (int i = 0;; ++i)
                WriteNumber(File(), "V" + std::to_string(i % 50), i);
        }
        ::usleep(static_cast<useconds_t>(1000 + round * 700));
        ::kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        killed += WIFSIGNALED(status);
        ASSERT_FALSE(nlohmann::json::parse(FileContent(File()), nullptr, false).is_discarded());
        EXPECT_EQ(ReadNumber(File(), "First"), 1);
    }
    EXPECT_EQ(killed, 30);
    // What the killed ones left beside the file is gone after the next write.
    WriteNumber(File(), "Last", 1);
    for (const auto& item : std::filesystem::directory_iterator(Folder.Path()))
        EXPECT_EQ(item.path().filename().string().find("-part-"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(File() + ".damaged"));
}

TEST_F(JsonSettingsTest, OtherKeyPathsAreLeftAlone) {
    Settings.WriteRegistryValue("Software\\Other", "A", 5, SettingType::Integer);
    EXPECT_EQ(
        std::get<std::int32_t>(Settings.ReadRegistryValue("Software\\Other", "A", 1, SettingType::Integer)),
        1);
}

TEST_F(JsonSettingsTest, TextsAreOfAnyCharacters) {
    Settings.WriteLogbookSetting("InitZipArchiveDir", std::string("/ä/€/😀"), SettingType::Text);
    EXPECT_EQ(Settings.ReadLogbookSettingString("InitZipArchiveDir", ""), "/ä/€/😀");
}
