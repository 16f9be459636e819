// SPDX-License-Identifier: MIT
#include "settings/Registry.h"

#include "support/MemorySettings.h"
#include "support/TestStore.h"

#include <gtest/gtest.h>

namespace {

class RegistryTest : public testing::Test {
  protected:
    TestStore Place;
    Registry Settings{Place.Store()};
};

} // namespace

TEST_F(RegistryTest, MissingStoreGivesEveryDefault) {
    EXPECT_EQ(Settings.ReadLogbookSettingLong("Main.Left", 100), 100);
    EXPECT_EQ(Settings.ReadSettingString("InitLogbookDir", "/opt", SubKeys::Logbook), "/opt");
    EXPECT_EQ(Settings.ReadFilterSettingLong("FilterCount", 0), 0);
    EXPECT_FALSE(Place.IsMade()); // a read makes no key
}

TEST_F(RegistryTest, ValuesComeBackFromTheirKeys) {
    Settings.WriteSetting("DialogLanguage", 1, SettingType::Integer);
    Settings.WriteLogbookSetting("Column(1).Width", 2500, SettingType::Integer);
    Settings.WriteLogbookSetting("InitZipArchiveDir", std::string("/ä/€/😀"), SettingType::Text);
    Settings.WriteFilterSetting("Filter1", std::string("I|0||||1"), SettingType::Text);
    Settings.WriteSetting("FilterCol(3).Width", -780, SettingType::Integer, SubKeys::FilterDialog);

    EXPECT_EQ(Settings.ReadSettingLong("DialogLanguage", 0), 1);
    EXPECT_EQ(Settings.ReadSettingLong("DialogLanguage", 7, SubKeys::Logbook), 7);
    EXPECT_EQ(Settings.ReadLogbookSettingLong("Column(1).Width", 0), 2500);
    EXPECT_EQ(Settings.ReadLogbookSettingString("InitZipArchiveDir", ""), "/ä/€/😀");
    EXPECT_EQ(Settings.ReadFilterSettingString("Filter1", ""), "I|0||||1");
    EXPECT_EQ(Settings.ReadSettingLong("FilterCol(3).Width", 0, SubKeys::FilterDialog), -780);
    EXPECT_EQ(std::get<std::int32_t>(Settings.ReadLogbookSetting("Column(1).Width", 0, SettingType::Integer)),
              2500);
}

TEST_F(RegistryTest, NamesCompareWithoutCase) {
    Settings.WriteSetting("Main.Left", 5, SettingType::Integer, "Logbook");
    Settings.WriteSetting("MAIN.LEFT", 6, SettingType::Integer, "LogBook");
    EXPECT_EQ(Settings.ReadSettingLong("main.left", 0, "LOGBOOK"), 6);
    EXPECT_EQ(std::get<std::int32_t>(Settings.ReadRegistryValue("software\\veltrandor\\QORVIX\\Logbook",
                                                                "Main.Left", 0, SettingType::Integer)),
              6);
}

TEST_F(RegistryTest, OtherKindOfValueGivesTheDefault) {
    Settings.WriteSetting("Number", 5, SettingType::Integer);
    Settings.WriteSetting("Text", std::string("5"), SettingType::Text);
    EXPECT_EQ(Settings.ReadSettingString("Number", "default"), "default");
    EXPECT_EQ(Settings.ReadSettingLong("Text", 7), 7);
}

TEST_F(RegistryTest, WriteConvertsToTheKindThatIsNamed) {
    Settings.WriteSetting("A", 5, SettingType::Text);
    Settings.WriteSetting("B", std::string("-17"), SettingType::Integer);
    Settings.WriteSetting("C", std::string("no number"), SettingType::Integer);
    EXPECT_EQ(Settings.ReadSettingString("A", ""), "5");
    EXPECT_EQ(Settings.ReadSettingLong("B", 0), -17);
    EXPECT_EQ(Settings.ReadSettingLong("C", 3), 3);
    Settings.WriteSetting("D", std::string("12 rooms"), SettingType::Integer);
    EXPECT_EQ(Settings.ReadSettingLong("D", 3), 3);
}

TEST_F(RegistryTest, OtherTypeCodesStoreAndReadNothing) {
    Settings.WriteSetting("A", 5, SettingType::Integer);
    Settings.WriteSetting("A", 6, static_cast<SettingType>(3));
    EXPECT_EQ(Settings.ReadSettingLong("A", 0), 5);
    EXPECT_EQ(std::get<std::int32_t>(Settings.ReadSetting("A", 9, static_cast<SettingType>(2))), 9);
}

TEST_F(RegistryTest, LongestTextIs1023Characters) {
    for (const std::string character : {"x", "ä"}) {
        std::string text;
        for (std::size_t i = 0; i < Registry::LongestText; ++i)
            text += character;
        Settings.WriteSetting("Whole", text, SettingType::Text);
        Settings.WriteSetting("Longer", text + character, SettingType::Text);
        EXPECT_EQ(Settings.ReadSettingString("Whole", "default"), text);
        EXPECT_EQ(Settings.ReadSettingString("Longer", "default"), "default");
    }
}

TEST_F(RegistryTest, TextEndsBeforeItsFirstNul) {
    Settings.WriteSetting("A", std::string("ab\0cd", 5), SettingType::Text);
    EXPECT_EQ(Settings.ReadSettingString("A", ""), "ab");
    Settings.WriteSetting("B", std::string(), SettingType::Text);
    EXPECT_EQ(Settings.ReadSettingString("B", "default"), "");
}

TEST_F(RegistryTest, FilterKeyIsDeletedWithItsValuesOnly) {
    Settings.WriteLogbookSetting("Main.Left", 5, SettingType::Integer);
    Settings.WriteFilterSetting("FilterCount", 5, SettingType::Integer);
    Settings.DeleteFilterKey();
    EXPECT_EQ(Settings.ReadFilterSettingLong("FilterCount", 0), 0);
    EXPECT_EQ(Settings.ReadLogbookSettingLong("Main.Left", 0), 5);
    Settings.DeleteFilterKey();
}

TEST_F(RegistryTest, OtherKeyPathsAreLeftAlone) {
    Settings.WriteRegistryValue("Software\\Other", "A", 5, SettingType::Integer);
    EXPECT_EQ(
        std::get<std::int32_t>(Settings.ReadRegistryValue("Software\\Other", "A", 1, SettingType::Integer)),
        1);
}

TEST(RegistryTransaction, WithinAnotherIsRefusedAndTheFirstGoesOn) {
    MemorySettings store;
    Registry settings(store);
    {
        const Registry::Transaction transaction(settings);
        settings.WriteFilterSetting("A", 1, SettingType::Integer);
        EXPECT_THROW(const Registry::Transaction another(settings), std::logic_error);
        settings.WriteFilterSetting("B", 2, SettingType::Integer);
        EXPECT_EQ(store.Writes, 0);
    }
    EXPECT_EQ(store.Writes, 1);
    EXPECT_EQ(settings.ReadFilterSettingLong("B", 0), 2);
    const Registry::Transaction next(settings);
}

TEST(RegistryTransaction, IsOneWrite) {
    MemorySettings store;
    Registry settings(store);
    {
        const Registry::Transaction transaction(settings);
        settings.WriteFilterSetting("A", 1, SettingType::Integer);
        settings.DeleteFilterKey();
        settings.WriteFilterSetting("B", 2, SettingType::Integer);
        EXPECT_EQ(store.Writes, 0);
    }
    EXPECT_EQ(store.Writes, 1);
    EXPECT_EQ(settings.ReadFilterSettingLong("A", 0), 0);
    EXPECT_EQ(settings.ReadFilterSettingLong("B", 0), 2);
    settings.WriteFilterSetting("C", 3, SettingType::Integer);
    EXPECT_EQ(store.Writes, 2);
}
