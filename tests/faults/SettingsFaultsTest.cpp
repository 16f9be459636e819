// SPDX-License-Identifier: MIT
// The settings on a disk that refuses them: the program says nothing, runs on the defaults or on what is
// stored, and stores again when it can.
#include "faults/FaultTest.h"
#include "faults/ProgramWindow.h"

#include <nlohmann/json.hpp>

#include <cerrno>

namespace {

namespace fs = std::filesystem;

class SettingsFaults : public FaultTest {
  protected:
    // Opens a logbook, removes an entry, which is stored at once, and closes, which stores the rest. No
    // message comes.
    void RunInSilence(const Fault& fault) {
        ProgramWindow window({LogFile}, Variables(fault));
        const std::size_t rows = window.UntilShown().Cells.size();
        EXPECT_GE(rows, 2U);
        window.Select(0);
        window.Trigger("mnuPopupRemove");
        window.UntilRows(rows - 1);
        window.Close();
        EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    }

    // The value at a path of the stored settings, whose file is whole; null where there is none.
    nlohmann::json Stored(const char* path) const {
        const auto settings = nlohmann::json::parse(FileContent(SettingsFile()));
        const nlohmann::json::json_pointer pointer(path);
        return settings.contains(pointer) ? settings[pointer] : nlohmann::json();
    }

    void ExpectOldSettings() const {
        EXPECT_EQ(FileContent(SettingsFile()), Old);
        EXPECT_EQ(NamesIn(SettingsFolder), std::vector<std::string>{"Qorvix.json"});
    }

    // The program stores again, and has lost nothing.
    void ExpectToStoreAgain() {
        RunInSilence({});
        EXPECT_EQ(Stored("/DialogLanguage"), 5);
        EXPECT_EQ(Stored("/Logbook/MainIsMaximized"), 0);
        EXPECT_EQ(NamesIn(SettingsFolder), (std::vector<std::string>{"Qorvix.json", "Qorvix.json.lock"}));
    }

    void StoreOld() const {
        fs::remove_all(SettingsFolder);
        fs::create_directory(SettingsFolder);
        Folder.Write("config/VELTRANDOR/Qorvix.json", Old);
    }

    const std::string Old = "{\"DialogLanguage\": 5, \"Logbook\": {\"Column(1).Width\": 2500}}";
    const std::string SettingsFolder = Config + "/VELTRANDOR";
    const std::string LogFile = Folder.Write("work/a.log", LogbookOf(5));
};

} // namespace

TEST_F(SettingsFaults, MissingFolderIsMade) {
    fs::remove(Config);
    RunInSilence({});
    EXPECT_EQ(Stored("/Logbook/MainIsMaximized"), 0);
    EXPECT_EQ(Stored("/Logbook/Filters/FilterCount"), 2);
}

TEST_F(SettingsFaults, FileInThePlaceOfTheFolder) {
    Folder.Write("config/VELTRANDOR", "a file");
    RunInSilence({});
    EXPECT_EQ(FileContent(SettingsFolder), "a file");
    StoreOld();
    ExpectToStoreAgain();
}

TEST_F(SettingsFaults, ReadOnlyFolder) {
    RunInSilence(ReadOnlyDisk(Config));
    EXPECT_TRUE(fs::is_empty(Config));
    StoreOld();
    RunInSilence(ReadOnlyDisk(Config));
    ExpectOldSettings();
    ExpectToStoreAgain();
}

TEST_F(SettingsFaults, ReadOnlyFolderOfAnEarlierRun) {
    StoreOld();
    RunInSilence({});
    const std::string before = FileContent(SettingsFile());
    RunInSilence(ReadOnlyDisk(Config));
    EXPECT_EQ(FileContent(SettingsFile()), before);
    ExpectToStoreAgain();
}

TEST_F(SettingsFaults, FullDisk) {
    StoreOld();
    RunInSilence(FullDisk(Config));
    ExpectOldSettings();
    ExpectToStoreAgain();
}

TEST_F(SettingsFaults, DiskThatFillsWithinTheFile) {
    for (const char* bytes : {"0", "1", "100"}) {
        StoreOld();
        Fault fault = FullDisk(SettingsFolder);
        fault.Calls = "w";
        fault.Bytes = bytes;
        RunInSilence(fault);
        EXPECT_EQ(FileContent(SettingsFile()), Old) << bytes;
        EXPECT_EQ(NamesIn(SettingsFolder), (std::vector<std::string>{"Qorvix.json", "Qorvix.json.lock"}));
        ExpectToStoreAgain();
    }
}

TEST_F(SettingsFaults, EveryFailingCallLeavesWholeSettings) {
    int failed = 0;
    for (bool fails = true; fails; ++failed) {
        StoreOld();
        RunInSilence({SettingsFolder, "cowr", EIO, failed});
        fails = FileContent(SettingsFile()) == Old || Stored("/Logbook/MainIsMaximized").is_null();
        EXPECT_EQ(Stored("/DialogLanguage"), 5);
        ASSERT_LT(failed, 100);
    }
    EXPECT_GT(failed, 5);
}

TEST_F(SettingsFaults, FaultThatEndsWhileTheProgramRuns) {
    StoreOld();
    Fault fault = ReadOnlyDisk(Config);
    fault.While = Folder.Write("refusing", "");
    ProgramWindow window({LogFile}, Variables(fault));
    window.UntilShown();
    window.Select(0);
    window.Trigger("mnuPopupRemove");
    window.UntilRows(4);
    ExpectOldSettings();
    fs::remove(fault.While);
    window.Close();
    EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    EXPECT_EQ(Stored("/DialogLanguage"), 5);
    EXPECT_EQ(Stored("/Logbook/MainIsMaximized"), 0);
}

TEST_F(SettingsFaults, KilledAtEveryCallOfAWrite) {
    int killed = 0;
    for (bool wasKilled = true; wasKilled; ++killed) {
        StoreOld();
        {
            ProgramWindow window({}, Variables(KilledAt(SettingsFolder, killed)));
            window.UntilIdle();
            window.Close();
            const ProgramEnd end = window.Program().WaitForEnd();
            wasKilled = end == KilledEnd;
            EXPECT_TRUE(wasKilled || end == GoodEnd);
        }
        EXPECT_EQ(Stored("/DialogLanguage"), 5) << killed;
        const bool isNew = !Stored("/Logbook/MainIsMaximized").is_null();
        EXPECT_TRUE(isNew || FileContent(SettingsFile()) == Old) << killed;
        ExpectToStoreAgain();
        ASSERT_LT(killed, 100);
    }
    EXPECT_GT(killed, 5);
}
