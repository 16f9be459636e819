// SPDX-License-Identifier: MIT
#include "tools/ErrorKey.h"

#include "eventinfo/iZEKEventInfo.h"

#include <gtest/gtest.h>

namespace {

std::string KeyOf(std::string_view data) { return ErrorKey("SENDER", "NAME", data); }

} // namespace

TEST(ErrorKey, CodesAreWrittenInOneWay) {
    EXPECT_EQ(KeyOf("Event: 232-0005"), "232-0005");
    EXPECT_EQ(KeyOf("Event: 1e1-10, Achse X"), "1E1-0010");
    EXPECT_EQ(KeyOf("Achse X: Event: 1E1-11"), "1E1-0011");
    EXPECT_EQ(KeyOf("Event: 2b"), "231-002B");
    EXPECT_EQ(KeyOf("Event: 300-12345"), "300-12345");
    EXPECT_EQ(KeyOf("Event: 232-0005 | Quittieren mit CE | "), "232-0005");
    EXPECT_EQ(KeyOf("N104 Event: 232-0005"), "232-0005");
    EXPECT_EQ(KeyOf("Event: "), "231-0000");
}

TEST(ErrorKey, CodesOfUnknownFacilitiesAreWords) {
    EXPECT_EQ(KeyOf("Event: 0FF-0001"), "SENDER/NAME Event: #FF-#");
    EXPECT_EQ(KeyOf("Event: 108-0001"), "SENDER/NAME Event: #-#");
    EXPECT_EQ(KeyOf("Event: 2B at X-40"), "SENDER/NAME Event: #B at X-#");
    EXPECT_EQ(KeyOf("Event: 232-123456789"), "SENDER/NAME Event: #-#");
}

TEST(ErrorKey, CodesAreWhatTheLookupParses) {
    const FacilityTable table = InitFacilityTable();
    for (const std::string_view code : {"232-0005", "1e1-10, Achse X", "2b", "0FF-0001", "108-1", "-7", "",
                                        "2B at X-40", " 232 - 5", "300-1234 | a-b | ", "314-FFFFFFFF"}) {
        const std::optional<EventCode> parsed = ParseEventCode(code, table);
        const std::string key = KeyOf("Event: " + std::string(code));
        ASSERT_EQ(parsed.has_value(), !key.starts_with("SENDER/")) << code;
        if (!parsed)
            continue;
        char expected[32];
        std::snprintf(expected, sizeof(expected), "%llX-%04llX",
                      static_cast<unsigned long long>(parsed->Facility),
                      static_cast<unsigned long long>(parsed->Number));
        EXPECT_EQ(key, expected) << code;
    }
}

TEST(ErrorKey, NumbersFollowTheirLetter) {
    EXPECT_EQ(KeyOf("N104 Satzformat falsch, Satz 5"), "N104");
    EXPECT_EQ(KeyOf("P012 Kühlmittelstand niedrig"), "P12");
    EXPECT_EQ(KeyOf("P2713.NC nicht lauffähig"), "P2713");
    EXPECT_EQ(KeyOf("P+5 x"), "P5");
    EXPECT_EQ(KeyOf("N520 | Quittieren mit CE | "), "N520");
}

TEST(ErrorKey, OtherTextsAreWordsWithoutTheirDigits) {
    EXPECT_EQ(KeyOf("P2713.NC"), "SENDER/NAME P#.NC");
    EXPECT_EQ(KeyOf("N520 | block | "), "SENDER/NAME N# | block | ");
    EXPECT_EQ(KeyOf("P-5 x"), "SENDER/NAME P-# x");
    EXPECT_EQ(KeyOf("P 5 x"), "SENDER/NAME P # x");
    EXPECT_EQ(KeyOf("Y0412 job7.py"), "SENDER/NAME Y# job#.py");
    EXPECT_EQ(ErrorKey("REMO", "DEB:S01", "12 of 345"), "REMO/DEB:S01 # of #");
    EXPECT_EQ(ErrorKey("MAIN", "", ""), "MAIN/ ");
}

TEST(ErrorKey, LetterAndNumberNeedNothingBehind) {
    EXPECT_EQ(LetterAndNumber("N5797"), "N5797");
    EXPECT_EQ(LetterAndNumber("P012 CE"), "P12");
    EXPECT_EQ(LetterAndNumber("Y12"), std::nullopt);
    EXPECT_EQ(LetterAndNumber("NC"), std::nullopt);
    EXPECT_EQ(LetterAndNumber(""), std::nullopt);
}
