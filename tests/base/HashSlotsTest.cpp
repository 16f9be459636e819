// SPDX-License-Identifier: MIT
#include "base/HashSlots.h"

#include <gtest/gtest.h>

namespace {

struct Slot {
    std::size_t Hash = 0;
    int Item = 0; // 0 = free

    bool IsFree() const { return Item == 0; }
};

std::vector<int> Items(const std::vector<Slot>& slots) {
    std::vector<int> items;
    for (const Slot& slot : slots)
        items.push_back(slot.Item);
    return items;
}

} // namespace

TEST(HashSlots, EachItemComesToTheSlotOfItsHash) {
    std::vector<Slot> slots{{0, 1}, {5, 2}, {}, {7, 3}};
    DoubleSlots(slots);
    EXPECT_EQ(Items(slots), std::vector<int>({1, 0, 0, 0, 0, 2, 0, 3}));
}

TEST(HashSlots, ItemsOfOneSlotFollowEachOtherRoundTheEnd) {
    std::vector<Slot> slots{{7, 2}, {15, 3}, {}, {23, 1}};
    DoubleSlots(slots);
    EXPECT_EQ(Items(slots), std::vector<int>({3, 1, 0, 0, 0, 0, 0, 2}));
    DoubleSlots(slots);
    EXPECT_EQ(Items(slots), std::vector<int>({0, 0, 0, 0, 0, 0, 0, 1, 2, 0, 0, 0, 0, 0, 0, 3}));
}
