// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// Numbers texts from 0 in the order in which they come. The texts themselves stay with the caller. A look-up
// costs one hash and mostly one comparison.
class KeyNumbers {
  public:
    // The number of a text; nothing when it has none. `textOf(number)` gives the text with a number.
    template <typename TextOf>
    std::optional<std::size_t> Find(std::string_view text, TextOf textOf) const {
        const Slot& slot = SlotOf(text, HashOf(text), textOf);
        return slot.IsFree() ? std::nullopt : std::optional<std::size_t>(slot.Number);
    }

    // The same, but a text without a number gets the next one. The caller then keeps the text.
    template <typename TextOf>
    std::size_t FindOrAdd(std::string_view text, TextOf textOf) {
        const std::uint32_t hash = HashOf(text);
        const Slot& slot = SlotOf(text, hash, textOf);
        return slot.IsFree() ? Add(hash) : slot.Number;
    }

  private:
    static constexpr std::uint32_t Free = 0xFFFFFFFF;

    struct Slot {
        std::uint32_t Hash = 0;
        std::uint32_t Number = Free;
        bool IsFree() const { return Number == Free; }
    };

    static std::uint32_t HashOf(std::string_view text);
    std::size_t Add(std::uint32_t hash);

    template <typename TextOf>
    const Slot& SlotOf(std::string_view text, std::uint32_t hash, TextOf textOf) const {
        std::size_t slot = hash & (slots_.size() - 1);
        while (!slots_[slot].IsFree() &&
               (slots_[slot].Hash != hash || std::string_view(textOf(slots_[slot].Number)) != text))
            slot = (slot + 1) & (slots_.size() - 1);
        return slots_[slot];
    }

    std::vector<Slot> slots_ = std::vector<Slot>(1024);
    std::uint32_t count_ = 0;
};
