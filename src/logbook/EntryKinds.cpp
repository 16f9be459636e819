// SPDX-License-Identifier: MIT
#include "logbook/EntryKinds.h"

#include "base/HashSlots.h"
#include "base/ShortText.h"

namespace {

constexpr std::size_t FirstSlotCount = 1024;

std::uint64_t Mix(std::uint64_t hash, std::uint64_t value) {
    hash = (hash ^ value) * 0x9E3779B97F4A7C15U;
    return hash ^ (hash >> 32U);
}

// Takes whole words at a time; the last two overlap. The caller adds the length to the hash.
std::uint64_t MixText(std::uint64_t hash, std::string_view text) {
    const char* bytes = text.data();
    const std::size_t length = text.size();
    if (length >= 8) {
        for (std::size_t i = 0; i + 8 < length; i += 8)
            hash = Mix(hash, LoadEight(bytes + i));
        return Mix(hash, LoadEight(bytes + length - 8));
    }
    if (length >= 4)
        return Mix(hash, std::uint64_t{LoadFour(bytes)} << 32U | LoadFour(bytes + length - 4));
    std::uint64_t value = 0;
    for (const char c : text)
        value = value << 8U | static_cast<unsigned char>(c);
    return Mix(hash, value);
}

std::uint64_t HashOf(const ParsedEntry& entry) {
    const auto field = [](auto value) { return static_cast<std::uint64_t>(value) & 0xFFFFU; };
    const std::uint64_t hash = field(entry.EventType) | field(entry.Image) << 16U |
                               field(entry.Sender.size()) << 32U | field(entry.Name.size()) << 48U;
    return MixText(MixText(hash, entry.Sender), entry.Name);
}

} // namespace

void EntryKinds::Clear() {
    kinds_.clear();
    slots_.assign(FirstSlotCount, {});
    nameless_.fill(ParsedEntry::UnknownKind);
}

std::uint32_t EntryKinds::Find(const ParsedEntry& entry, const CodePage& codePage) {
    const std::uint64_t hash = HashOf(entry);
    std::size_t slot = hash & (slots_.size() - 1);
    for (; !slots_[slot].IsFree(); slot = (slot + 1) & (slots_.size() - 1)) {
        const Known& known = *slots_[slot].Place;
        if (slots_[slot].Hash == hash && known.Kind.EventType == entry.EventType &&
            known.Kind.Image == entry.Image && IsSameShort(known.Sender, entry.Sender) &&
            IsSameShort(known.Name, entry.Name))
            return slots_[slot].Number;
    }
    const auto number = static_cast<std::uint32_t>(kinds_.size());
    kinds_.push_back(
        {{entry.EventType, entry.Image, codePage.ToUtf8(entry.Sender), codePage.ToUtf8(entry.Name)},
         std::string(entry.Sender),
         std::string(entry.Name)});
    slots_[slot] = {hash, &kinds_.back(), number};
    if (kinds_.size() * 2 > slots_.size())
        DoubleSlots(slots_);
    return number;
}
