// SPDX-License-Identifier: MIT
#include "rows/SpokenRow.h"

#include "logbook/EntryTable.h"
#include "logbook/LogbookEntry.h"

#include <gtest/gtest.h>

namespace {

// What is said of the one row of a list.
std::string Spoken(std::int16_t eventType, std::int16_t image, bool highlighted, std::int32_t language) {
    ParsedEntry entry;
    entry.EventType = eventType;
    entry.Image = image;
    EntryTable entries;
    entries.Append(entry, CodePage());
    return SpokenRow(entries, {0, highlighted ? 1U : 0U}, {language});
}

} // namespace

TEST(SpokenRow, IconThatSaysMoreThanTheEventTypeIsPutIntoWords) {
    struct Row {
        std::int16_t EventType;
        std::int16_t Image;
        const char* English;
        const char* German;
    };
    static constexpr Row Rows[] = {
        {EventTypes::Info, Images::Info, "Info", "Info"},
        {EventTypes::Warning, Images::Warning, "Warning", "Warning"},
        {EventTypes::Error, Images::Error, "Error", "Error"},
        {EventTypes::Fatal, Images::Fatal, "Fatal", "Fatal"},
        {EventTypes::Key, Images::Key, "Key", "Key"},
        {EventTypes::Keystr, Images::Key, "Keystr", "Keystr"},
        {EventTypes::Restart, Images::Restart, "Restart", "Restart"},
        {EventTypes::Info, Images::Mouse, "Info, mouse click", "Info, Mausklick"},
        {EventTypes::Info, Images::DebugSend, "Info, debugging data sent", "Info, Testdaten gesendet"},
        {EventTypes::Info, Images::DebugReceive, "Info, debugging data received",
         "Info, Testdaten empfangen"},
        {EventTypes::Info, Images::ErrorCleared, "Info, error cleared", "Info, Fehler gelöscht"},
        {EventTypes::Status, Images::Info, "Status", "Status"},
        {EventTypes::Status, Images::StatusOn, "Status, on", "Status, an"},
        {EventTypes::Status, Images::StatusBlink, "Status, blinking", "Status, blinkend"},
        {EventTypes::Status, Images::StatusOff, "Status, off", "Status, aus"},
    };
    for (const Row& row : Rows) {
        EXPECT_EQ(Spoken(row.EventType, row.Image, false, Language::English), row.English);
        EXPECT_EQ(Spoken(row.EventType, row.Image, false, Language::German), row.German);
    }
}

TEST(SpokenRow, HighlightedRowIsSaidToBe) {
    EXPECT_EQ(Spoken(EventTypes::Error, Images::Error, true, Language::English), "Error, highlighted");
    EXPECT_EQ(Spoken(EventTypes::Error, Images::Error, true, Language::German), "Error, markiert");
    EXPECT_EQ(Spoken(EventTypes::Info, Images::Mouse, true, Language::English),
              "Info, mouse click, highlighted");
    EXPECT_EQ(Spoken(0, Images::Info, true, Language::English), "highlighted");
}
