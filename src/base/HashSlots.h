// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

// Doubles the slots of a hash table: a vector whose size is a power of two, in which an item lies in the slot
// that the lowest bits of its hash name, or in the next free one behind it, round the end. A Slot has a
// member Hash and tells whether it IsFree. At least one slot must be free.
template <typename Slot>
void DoubleSlots(std::vector<Slot>& slots) {
    std::vector<Slot> before(slots.size() * 2);
    before.swap(slots);
    for (const Slot& taken : before) {
        if (taken.IsFree())
            continue;
        std::size_t slot = taken.Hash & (slots.size() - 1);
        while (!slots[slot].IsFree())
            slot = (slot + 1) & (slots.size() - 1);
        slots[slot] = taken;
    }
}
