// SPDX-License-Identifier: MIT
#include "history/ErrorKey.h"

#include <gtest/gtest.h>

namespace {

// The key of an entry of a sender and name, with "!" behind it when it is a code.
std::string KeyOf(std::string_view data) {
    const ErrorKeys keys(InitFacilityTable());
    std::string key = "what was there before";
    const ErrorKeys::Form form = keys.MakeKey(data, "S1", "N2", key);
    return key + (form == ErrorKeys::Form::Code ? "!" : "");
}

std::string ClearedBy(std::string_view data) { return ErrorKeys(InitFacilityTable()).ClearedCode(data); }

} // namespace

TEST(ErrorKey, IsTheCodeOfACodedEvent) {
    EXPECT_EQ(KeyOf("Event: 232-0005"), "232-0005!");
    EXPECT_EQ(KeyOf("Axis X | Event: 232-5 | more"), "232-0005!");
    EXPECT_EQ(KeyOf("Event: 1e1-abcdef"), "1E1-ABCDEF!");
    EXPECT_EQ(KeyOf("Event: 2b"), "231-002B!");
    EXPECT_EQ(KeyOf("N938 Event: 232-5"), "232-0005!");
}

TEST(ErrorKey, IsNoCodeWhereTheLookupFindsNone) {
    EXPECT_EQ(KeyOf("Event: FFFFF-5"), "S1/N2 Event: FFFFF-#");
    EXPECT_EQ(KeyOf("Event: 232-123456789"), "S1/N2 Event: #-#");
}

TEST(ErrorKey, IsTheNumberOfAClassicError) {
    EXPECT_EQ(KeyOf("P2318 Tool change timeout"), "P2318!");
    EXPECT_EQ(KeyOf("N0412 Satz 7"), "N412!");
    EXPECT_EQ(KeyOf("N+5 x"), "N5!");
    EXPECT_EQ(KeyOf("P17.NC not found"), "P17!");
    EXPECT_EQ(KeyOf("N12 | two words"), "N12!");
}

TEST(ErrorKey, IsMadeOfWordsWhereThereIsNoNumber) {
    EXPECT_EQ(KeyOf("Netz 230 V fehlt"), "S1/N2 Netz # V fehlt");
    EXPECT_EQ(KeyOf("N 938 x"), "S1/N2 N # x");
    EXPECT_EQ(KeyOf("N-5 x"), "S1/N2 N-# x");
    EXPECT_EQ(KeyOf("Y0412 job7.py"), "S1/N2 Y# job#.py");
    // No blank behind the number, but that of a line break.
    EXPECT_EQ(KeyOf("P2318"), "S1/N2 P#");
    EXPECT_EQ(KeyOf("P2318 | next | "), "S1/N2 P# | next | ");
    EXPECT_EQ(KeyOf(""), "S1/N2 ");
}

TEST(ErrorKey, OfAClearedErrorNeedsNoBlank) {
    EXPECT_EQ(ClearedBy("N5797"), "N5797");
    EXPECT_EQ(ClearedBy("P0012 CE"), "P12");
    EXPECT_EQ(ClearedBy("N5797 | Ursache | "), "N5797");
    EXPECT_EQ(ClearedBy("Event: 232-5"), "232-0005");
    EXPECT_EQ(ClearedBy("Netz"), "");
    EXPECT_EQ(ClearedBy("N"), "");
    EXPECT_EQ(ClearedBy(""), "");
}
