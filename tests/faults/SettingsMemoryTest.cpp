// SPDX-License-Identifier: MIT
// Settings that are written and read when memory runs out: the file is as it was or as it would be.
#include "base/FileLock.h"
#include "faults/FailingMemory.h"
#include "filter/FilterStorage.h"
#include "settings/JsonSettings.h"
#include "settings/Registry.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <memory>

namespace {

namespace fs = std::filesystem;
using testing::AnyOf;
using testing::Eq;
using testing::UnorderedElementsAre;

constexpr const char* Before = R"({
  "Logbook": {
    "Filters": {
      "FilterCount": 0,
      "InitFilterDir": "/a folder whose name is too long for a short string"
    },
    "InitLogbookDir": "/where the logbook of the day before was opened"
  },
  "Numbers": [1, [2, 3], {"four": 5}]
})";

class SettingsMemory : public testing::Test {
  protected:
    void Prepare(const std::string& before) {
        fs::remove_all(Config);
        fs::create_directory(Config);
        if (!before.empty())
            Folder.Write("config/Qorvix.json", before);
        MakeAnew();
    }

    void MakeAnew() {
        Settings.reset();
        Store = std::make_unique<JsonSettings>(File);
        Settings = std::make_unique<Registry>(*Store);
    }

    // What a piece of work makes of the file when there is memory.
    std::string AfterWork(const std::string& before, const std::function<void()>& work) {
        Prepare(before);
        work();
        return FileContent(File);
    }

    // Others can write at once, and nothing stays but the file and its lock.
    void ExpectNothingStays() {
        const FileHandle lock = OpenToHold(File + ".lock");
        if (lock.IsOpen()) {
            EXPECT_EQ(TryLock(lock), LockOutcome::Held);
        }
    }

    // The same settings go on, and so do new ones.
    void ExpectWritesGoOn() {
        Settings->WriteSetting("Next", "the next value, which is stored at once", SettingType::Text);
        EXPECT_EQ(JsonSettings(File).Read(ApplicationKey, "Next"),
                  SettingValue("the next value, which is stored at once"));
        EXPECT_THAT(Names(), UnorderedElementsAre("Qorvix.json", "Qorvix.json.lock"));
    }

    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& item : fs::directory_iterator(Config))
            names.push_back(item.path().filename().string());
        return names;
    }

    void ExpectOldOrNew(const std::string& before, const std::function<void()>& work) {
        const std::string after = AfterWork(before, work);
        ASSERT_NE(after, before);
        const std::size_t allocations =
            AtEveryAllocation([&] { Prepare(before); },
                              [&] {
                                  work();
                                  return true;
                              },
                              [&](WorkOutcome) {
                                  EXPECT_THAT(FileContent(File), AnyOf(Eq(before), Eq(after)));
                                  ExpectNothingStays();
                                  ExpectWritesGoOn();
                              });
        EXPECT_EQ(FileContent(File).empty(), false);
        EXPECT_GT(allocations, 20U);
    }

    TemporaryFolder Folder;
    const std::string Config = Folder / "config";
    const std::string File = Config + "/Qorvix.json";
    std::unique_ptr<JsonSettings> Store;
    std::unique_ptr<Registry> Settings;
};

} // namespace

TEST_F(SettingsMemory, ValueIsStoredWholeOrNotAtAll) {
    for (const std::string before : {"", Before})
        ExpectOldOrNew(before, [&] {
            Settings->WriteLogbookSetting("InitLogbookDir", "/where the logbook of this day was opened",
                                          SettingType::Text);
        });
}

TEST_F(SettingsMemory, KeyIsDeletedWholeOrNotAtAll) {
    ExpectOldOrNew(Before, [&] { Settings->DeleteFilterKey(); });
}

TEST_F(SettingsMemory, TransactionIsStoredWholeOrNotAtAll) {
    ExpectOldOrNew(Before, [&] {
        const Registry::Transaction transaction(*Settings);
        Settings->DeleteFilterKey();
        Settings->WriteLogbookSetting("InitLogbookDir", "/where the logbook of this day was opened",
                                      SettingType::Text);
        Settings->WriteLogbookSetting("InitLogbookFile", "/where the logbook of this day was opened/a.log",
                                      SettingType::Text);
    });
}

TEST_F(SettingsMemory, FiltersAreStoredWholeOrNotAtAll) {
    ExpectOldOrNew(Before, [&] {
        FilterLists lists = LoadFilters(*Settings, {});
        lists.Filters = DefaultFilters();
        lists.Filters.front().StringFilter = "a text that is too long for a short string";
        SaveFilters(*Settings, lists, "");
    });
}

TEST_F(SettingsMemory, DamagedFileIsKeptBeforeItIsReplaced) {
    constexpr const char* Damaged = "{\"Logbook\": {\"a value of a person\": 1, \"and half ano";
    AtEveryAllocation([&] { Prepare(Damaged); },
                      [&] {
                          Settings->WriteSetting("Number", 1, SettingType::Integer);
                          return true;
                      },
                      [&](WorkOutcome) {
                          if (FileContent(File) != Damaged) {
                              EXPECT_EQ(FileContent(File + ".damaged"), Damaged);
                              EXPECT_EQ(Settings->ReadSettingLong("Number", 0), 1);
                          }
                          ExpectNothingStays();
                          Settings->WriteSetting("Number", 2, SettingType::Integer);
                          EXPECT_EQ(FileContent(File + ".damaged"), Damaged);
                          EXPECT_EQ(JsonSettings(File).Read(ApplicationKey, "Number"), SettingValue(2));
                      });
}

TEST_F(SettingsMemory, ReadGivesWhatIsStoredOrSaysThatThereIsNoMemory) {
    const std::string stored = "/where the logbook of the day before was opened";
    std::string read;
    AtEveryAllocation([&] { Prepare(Before); },
                      [&] {
                          read = Settings->ReadLogbookSettingString("InitLogbookDir", "default");
                          return true;
                      },
                      [&](WorkOutcome outcome) {
                          if (outcome == WorkOutcome::Done) {
                              EXPECT_EQ(read, stored);
                          }
                          EXPECT_EQ(Settings->ReadLogbookSettingString("InitLogbookDir", "default"), stored);
                          EXPECT_EQ(FileContent(File), Before);
                      });
}
