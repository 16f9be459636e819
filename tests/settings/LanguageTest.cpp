// SPDX-License-Identifier: MIT
#include "settings/Language.h"

#include "settings/Registry.h"
#include "settings/Texts.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

TEST(Language, EmptyStoreIsEnglish) {
    MemorySettings store;
    const Language language = ReadLanguage(Registry(store));
    EXPECT_EQ(language.Number, 0);
    EXPECT_FALSE(language.IsGerman());
    EXPECT_EQ(LanguageCode(language), "en");
}

TEST(Language, CodesFollowTheNumbers) {
    const char* const codes[] = {"en", "de", "it", "es", "fr", "sv", "fi", "cs", "pl", "da", "hu", "nl"};
    for (std::int32_t number = 0; number < 12; ++number)
        EXPECT_EQ(LanguageCode({number}), codes[number]);
    for (const std::int32_t number : {-1, 12, 1000000, -1000000})
        EXPECT_EQ(LanguageCode({number}), "en");
}

TEST(Language, OnlyNumberOneIsGerman) {
    for (std::int32_t number = -2; number < 14; ++number)
        EXPECT_EQ(Language{number}.IsGerman(), number == 1);
    EXPECT_EQ(Text(TextId::StatusReady, {1}), "Bereit");
    for (const std::int32_t number : {0, 5, 7, 12, -1})
        EXPECT_EQ(Text(TextId::StatusReady, {number}), "Ready");
}

TEST(Language, IsStoredInTheApplicationKeyItself) {
    MemorySettings store;
    Registry registry(store);
    WriteLanguage(registry, {10});
    ASSERT_EQ(store.Values.size(), 1U);
    EXPECT_EQ(store.Values.begin()->first,
              (std::pair<std::string, std::string>("Software\\VELTRANDOR\\Qorvix", "DialogLanguage")));
    EXPECT_EQ(ReadLanguage(registry).Number, 10);
    EXPECT_EQ(LanguageCode(ReadLanguage(registry)), "hu");
}
