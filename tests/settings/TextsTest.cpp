// SPDX-License-Identifier: MIT
#include "settings/Texts.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

// The character behind "&", in lower case; "" when the text has no access key.
std::string AccessKey(std::string_view text) {
    const std::size_t mark = text.find('&');
    if (mark == std::string_view::npos || mark + 1 >= text.size())
        return {};
    const bool ascii = static_cast<unsigned char>(text[mark + 1]) < 0x80;
    std::string key(text.substr(mark + 1, ascii ? 1 : 2));
    if (ascii)
        key[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(key[0])));
    return key;
}

} // namespace

TEST(Texts, NoneIsEmpty) {
    ASSERT_GT(TextTable().size(), 80U);
    for (const TextRow& row : TextTable()) {
        EXPECT_FALSE(row.English.empty()) << static_cast<int>(row.Id);
        EXPECT_FALSE(row.German.empty()) << static_cast<int>(row.Id);
    }
}

TEST(Texts, AccessKeysOfAMenuDiffer) {
    for (const bool german : {false, true}) {
        std::map<std::pair<AccessKeyGroup, std::string>, std::string_view> keys;
        for (const TextRow& row : TextTable()) {
            const std::string_view text = german ? row.German : row.English;
            const std::string key = AccessKey(text);
            if (row.Group == AccessKeyGroup::None || key.empty())
                continue;
            // Its key goes back and forth between the list of filters and this button.
            if (row.Id == TextId::cmdImport && !german)
                continue;
            const auto [other, isNew] = keys.try_emplace({row.Group, key}, text);
            EXPECT_TRUE(isNew) << text << " and " << other->second;
        }
        EXPECT_GT(keys.size(), 20U);
    }
}

TEST(Texts, TextsWithAnAccessKeyBelongToAGroup) {
    for (const TextRow& row : TextTable())
        if (row.Id != TextId::PageSetup) {
            EXPECT_TRUE(AccessKey(row.English).empty() || row.Group != AccessKeyGroup::None) << row.English;
            EXPECT_TRUE(AccessKey(row.German).empty() || row.Group != AccessKeyGroup::None) << row.German;
        }
}

TEST(Texts, OddOnesAreKept) {
    const auto german = [](TextId id) { return Text(id, {Language::German}); };
    const auto english = [](TextId id) { return Text(id, {Language::English}); };
    EXPECT_EQ(english(TextId::mnuVContent), "&Inhalt");
    EXPECT_EQ(german(TextId::UsageFile), " <file name>: Log-/Service-Zip Datiename");
    EXPECT_EQ(german(TextId::UsageEmbedded), " -EMB: Embedded mode");
    EXPECT_EQ(english(TextId::mnuFileZipLogbook), "&Save log into archive");
    EXPECT_EQ(german(TextId::mnuFileZipLogbook), "&Logbuch in Archiv speichern...");
    EXPECT_EQ(english(TextId::FilterFileNoFilters), "File includes no filter informaion!");
    EXPECT_EQ(german(TextId::mnuFileOpen), "Ö&ffnen...");
    EXPECT_EQ(german(TextId::mnuHelpAbout), "&Über...");
    EXPECT_EQ(german(TextId::AskSaveComments),
              "Sie haben Kommentare bearbeitet. In Logbuch-Archiv speichern?");
    EXPECT_EQ(german(TextId::FilterTypeStatus), "Programmstatus Änderung (STIB)");
}

TEST(Texts, EventEntryDialogHasItsCaptions) {
    const auto both = [](TextId id) {
        return std::pair(Text(id, {Language::English}), Text(id, {Language::German}));
    };
    using Pair = std::pair<std::string_view, std::string_view>;
    EXPECT_EQ(both(TextId::EventEntryTitle), Pair("Event entry", "Ereignis-Eintrag"));
    EXPECT_EQ(both(TextId::lbEvent), Pair("Event type:", "Ereignistyp:"));
    EXPECT_EQ(both(TextId::lbIdent), Pair("Data:", "Inhalt:"));
    EXPECT_EQ(both(TextId::lbEmitter), Pair("Sender:", "Quelle:"));
    EXPECT_EQ(both(TextId::lbName), Pair("Name:", "Name:"));
    EXPECT_EQ(both(TextId::lbTime), Pair("Time:", "Zeit:"));
    EXPECT_EQ(both(TextId::lbIndex), Pair("Index:", "Index:"));
    EXPECT_EQ(both(TextId::lbEventID), Pair("Event ID:", "Ereignis-ID:"));
    EXPECT_EQ(both(TextId::lbComment), Pair("&Comment:", "&Kommentar:"));
    EXPECT_EQ(both(TextId::ReasonLabel), Pair("Reason:", "Ursache:"));
    EXPECT_EQ(both(TextId::FixLabel), Pair("Fix:", "Behebung:"));
    EXPECT_EQ(both(TextId::ReactionLabel), Pair("Reaction:", "Reaktion:"));
}
