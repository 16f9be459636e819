// SPDX-License-Identifier: MIT
#include "filter/NumberLists.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

// The least room for any range of numbers.
constexpr std::size_t Room = 21;

std::vector<std::string> TextsOf(const NumberLists& lists) {
    std::vector<std::string> texts;
    for (std::size_t list = 0; list < lists.Count(); ++list)
        texts.push_back(lists.Text(list));
    return texts;
}

// What becomes of a list when a number is taken out of it.
std::vector<std::string> Without(EntryNumber number, std::string_view text, std::size_t room) {
    NumberLists lists(Room);
    lists.Append(text, room);
    EXPECT_TRUE(lists.Remove(number));
    return TextsOf(lists);
}

} // namespace

TEST(NumberLists, WhatARemovalHasExactlyRoomForStays) {
    EXPECT_THAT(Without(50, "4-90,100", 14), ElementsAre("4-49,51-90,100"));
    EXPECT_THAT(Without(50, "4-90,100", 13), ElementsAre("4-49,51-90", "100"));
}

TEST(NumberLists, APartThatFillsANewListMovesThere) {
    const std::string part(Room, 'x');
    EXPECT_THAT(Without(50, "4-90," + part, 26), ElementsAre("4-49,51-90", part));
}

TEST(NumberLists, APartThatANewListHasNoRoomForStays) {
    const std::string part(Room + 1, 'x');
    EXPECT_THAT(Without(50, "4-90," + part, 27), ElementsAre("4-49,51-90," + part));
}

TEST(NumberLists, PartsMoveUntilTheRestHasRoom) {
    EXPECT_THAT(Without(50, "4-90,100,102,104", 16), ElementsAre("4-49,51-90,100", "104,102"));
}
