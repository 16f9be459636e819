// SPDX-License-Identifier: MIT
#include "helpbook/HelpFile.h"

#include <gtest/gtest.h>

TEST(HelpFile, LiesInTheFolderOfTheLanguage) {
    EXPECT_EQ(HelpFile("/opt/qorvix", {Language::English}), "/opt/qorvix/language/en/Qorvix.chm");
    EXPECT_EQ(HelpFile("/opt/qorvix", {Language::German}), "/opt/qorvix/language/de/Qorvix.chm");
}

TEST(HelpFile, DutchLooksInTheFolderOfHungarian) {
    EXPECT_EQ(HelpFile("/opt/qorvix", {10}), "/opt/qorvix/language/hu/Qorvix.chm");
}

TEST(HelpFile, UnknownLanguageIsEnglish) {
    EXPECT_EQ(HelpFile("/opt/qorvix", {12}), "/opt/qorvix/language/en/Qorvix.chm");
    EXPECT_EQ(HelpFile("/opt/qorvix", {-1}), "/opt/qorvix/language/en/Qorvix.chm");
}
