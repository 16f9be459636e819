// SPDX-License-Identifier: MIT
#include "history/KeyNumbers.h"

#include "base/HashSlots.h"

#include <xxhash.h>

std::uint32_t KeyNumbers::HashOf(std::string_view text) {
    return static_cast<std::uint32_t>(XXH3_64bits(text.data(), text.size()));
}

std::size_t KeyNumbers::Add(std::uint32_t hash) {
    if (count_ >= slots_.size() / 2)
        DoubleSlots(slots_);
    std::size_t slot = hash & (slots_.size() - 1);
    while (!slots_[slot].IsFree())
        slot = (slot + 1) & (slots_.size() - 1);
    slots_[slot] = {hash, count_};
    return count_++;
}
