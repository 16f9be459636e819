// SPDX-License-Identifier: MIT
#include "rows/DistinctData.h"

#include "base/HashSlots.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>

namespace {

constexpr EntryNumber BatchSize = 64;      // entries whose slots are fetched together
constexpr EntryNumber TrialSize = 1 << 16; // entries that tell whether texts occur again

// A hash table of text numbers: slots by the lowest bits of the hash, at most half of them taken.
class TextNumbers {
  public:
    explicit TextNumbers(std::vector<std::string_view>& texts) : texts_(texts), slots_(FirstSlotCount) {}

    void PrefetchSlot(std::uint32_t hash) const { Prefetch(&slots_[hash & (slots_.size() - 1)]); }

    // The text that NumberOf will most probably read.
    void PrefetchText(std::uint32_t hash) const {
        const Slot& slot = slots_[hash & (slots_.size() - 1)];
        if (!slot.IsFree())
            Prefetch(texts_[slot.NumberAfter - 1].data());
    }

    std::uint32_t NumberOf(std::string_view text, std::uint32_t hash) {
        std::size_t slot = hash & (slots_.size() - 1);
        for (; !slots_[slot].IsFree(); slot = (slot + 1) & (slots_.size() - 1))
            if (slots_[slot].Hash == hash && texts_[slots_[slot].NumberAfter - 1] == text)
                return slots_[slot].NumberAfter - 1;
        texts_.push_back(text);
        const auto numberAfter = static_cast<std::uint32_t>(texts_.size());
        slots_[slot] = {hash, numberAfter};
        if (texts_.size() * 2 > slots_.size())
            DoubleSlots(slots_);
        return numberAfter - 1;
    }

  private:
    static constexpr std::size_t FirstSlotCount = 1 << 12;

    struct Slot {
        std::uint32_t Hash = 0;
        std::uint32_t NumberAfter = 0; // the text's number + 1; 0 = free

        bool IsFree() const { return NumberAfter == 0; }
    };

    std::vector<std::string_view>& texts_;
    std::vector<Slot> slots_;
};

} // namespace

bool FindDistinctData(const EntryTable& entries, DistinctData& distinct, SortProgress& progress) {
    const EntryNumber count = entries.Count();
    distinct.Numbers.resize(count);
    TextNumbers numbers(distinct.Texts);
    std::array<std::uint32_t, BatchSize> hashes{};
    for (EntryNumber begin = 0; begin < count; begin += BatchSize) {
        const EntryNumber batch = std::min(BatchSize, count - begin);
        for (EntryNumber i = 0; i < batch; ++i) {
            hashes[i] = static_cast<std::uint32_t>(std::hash<std::string_view>{}(entries.Data(begin + i)));
            numbers.PrefetchSlot(hashes[i]);
        }
        for (EntryNumber i = 0; i < batch; ++i)
            numbers.PrefetchText(hashes[i]);
        for (EntryNumber i = 0; i < batch; ++i)
            distinct.Numbers[begin + i] = numbers.NumberOf(entries.Data(begin + i), hashes[i]);
        if (!progress.Step(batch))
            return false;
        const EntryNumber done = begin + batch;
        const std::size_t found = distinct.Texts.size();
        if (found > count / 4 || (done >= TrialSize && found > done / 4 * 3))
            return false;
    }
    return true;
}
