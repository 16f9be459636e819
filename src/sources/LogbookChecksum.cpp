// SPDX-License-Identifier: MIT
#include "sources/LogbookChecksum.h"

#include <xxhash.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace {

class Checksum {
  public:
    Checksum() : state_(XXH3_createState(), XXH3_freeState) { XXH3_128bits_reset(state_.get()); }

    void Add(const void* bytes, std::size_t count) { XXH3_128bits_update(state_.get(), bytes, count); }

    // With its length, so that neighbouring texts do not run together.
    void Add(std::string_view text) {
        const std::uint64_t length = text.size();
        Add(&length, sizeof length);
        Add(text.data(), text.size());
    }

    std::string Digits() const {
        XXH128_canonical_t canonical;
        XXH128_canonicalFromHash(&canonical, XXH3_128bits_digest(state_.get()));
        std::string digits;
        for (const unsigned char byte : canonical.digest) {
            digits += HexDigits[byte >> 4U];
            digits += HexDigits[byte & 0xFU];
        }
        return digits;
    }

  private:
    static constexpr std::string_view HexDigits = "0123456789abcdef";

    std::unique_ptr<XXH3_state_t, XXH_errorcode (*)(XXH3_state_t*)> state_;
};

// What an entry adds to the texts, without padding.
struct EntryPart {
    std::uint64_t TextBegin = 0;
    std::uint32_t Kind = 0;
    std::uint32_t Date = 0;
    std::uint32_t Clock = 0;
    std::uint32_t HasStampInText = 0;
};
static_assert(sizeof(EntryPart) == 24);

EntryPart PartOf(const EntryTable& entries, EntryNumber number) {
    EntryPart part{.TextBegin = entries.TextBegin(number), .Kind = entries.KindNumber(number)};
    PackedStamp stamp;
    part.HasStampInText = entries.PackedTime(number, stamp) ? 0 : 1;
    part.Date = stamp.Date;
    part.Clock = stamp.Clock;
    return part;
}

} // namespace

std::string LogbookChecksum(const EntryTable& entries) {
    Checksum sum;
    sum.Add(entries.Text());
    for (std::uint32_t i = 0; i < entries.Kinds().Count(); ++i) {
        const EntryKind& kind = entries.Kinds()[i];
        sum.Add(&kind.EventType, sizeof kind.EventType);
        sum.Add(&kind.Image, sizeof kind.Image);
        sum.Add(kind.Sender);
        sum.Add(kind.Name);
    }
    for (std::uint32_t i = 0; i < entries.Stamps().DateCount(); ++i)
        sum.Add(entries.Stamps().DateText(i));

    std::array<EntryPart, 256> parts;
    for (EntryNumber number = 0; number < entries.Count();) {
        std::size_t count = 0;
        for (; count < parts.size() && number < entries.Count(); ++number)
            parts[count++] = PartOf(entries, number);
        sum.Add(parts.data(), count * sizeof(EntryPart));
    }
    return sum.Digits();
}
