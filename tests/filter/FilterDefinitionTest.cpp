// SPDX-License-Identifier: MIT
#include "filter/FilterDefinition.h"

#include <gtest/gtest.h>

TEST(DefaultFilters, ShowEveryEntry) {
    EXPECT_EQ(DefaultFilters(), (std::vector<FilterDefinition>{{1, 0, "", "", "", true}}));
}

TEST(DefaultStringFilters, FollowTheLanguage) {
    EXPECT_EQ(DefaultStringFilters({Language::English}),
              (std::vector<StringFilter>{{"N938", "\"Key without function N938\"-Error"},
                                         {"N940", "\"Key without function N940\"-Error"}}));
    EXPECT_EQ(DefaultStringFilters({Language::German}),
              (std::vector<StringFilter>{{"N938", "\"Taste ohne Funktion N938\"-Fehlermeldungen"},
                                         {"N940", "\"Taste ohne Funktion N940\"-Fehlermeldungen"}}));
}

TEST(SenderChoices, StandInTheirOrder) {
    ASSERT_EQ(SenderChoices.size(), 17U);
    EXPECT_EQ(SenderChoices[0], "");
    EXPECT_EQ(SenderChoices[1], "GEO");
    EXPECT_EQ(SenderChoices[8], "PYTHON");
    EXPECT_EQ(SenderChoices[16], "BUS");
}

TEST(FilterTypeLabels, AreTheTypesInBothLanguages) {
    const char* const english[] = {
        "All entries",           "Info", "Warning", "Error",           "System error",
        "Program status change", "Key",  "Restart", "Entry number(s)", "Keystr"};
    const char* const german[] = {"Alle Einträge",    "Information",  "Warnung",
                                  "Fehler",           "Systemfehler", "Programmstatus Änderung (STIB)",
                                  "Tastenbetätigung", "Restart",      "Nur bestimmte Nummern",
                                  "Zeichenfolgen"};
    FilterTypeLabels labels;
    for (std::int16_t type = 0; type < 10; ++type) {
        EXPECT_EQ(labels.Label(type), english[type]);
        EXPECT_EQ(labels.FilterTypeIndex(english[type]), type);
    }
    labels.SetLanguage({Language::German});
    for (std::int16_t type = 0; type < 10; ++type) {
        EXPECT_EQ(labels.Label(type), german[type]);
        EXPECT_EQ(labels.FilterTypeIndex(german[type]), type);
    }
}

TEST(FilterTypeLabels, StayAsTheyWereForOtherLanguages) {
    FilterTypeLabels labels;
    labels.SetLanguage({5});
    EXPECT_EQ(labels.Label(3), "Error");
    labels.SetLanguage({Language::German});
    labels.SetLanguage({5});
    EXPECT_EQ(labels.Label(3), "Fehler");
    labels.SetLanguage({Language::English});
    EXPECT_EQ(labels.Label(3), "Error");
}

TEST(FilterTypeLabels, CompareExactly) {
    const FilterTypeLabels labels;
    for (const char* label : {"", "error", "Error ", "Fehler", "Errors"})
        EXPECT_EQ(labels.FilterTypeIndex(label), -1) << label;
}
