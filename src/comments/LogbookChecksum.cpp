// SPDX-License-Identifier: MIT
#include "comments/LogbookChecksum.h"

#include <xxhash.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <new>
#include <string_view>
#include <tuple>
#include <utility>

namespace {

// Sums up values and the ASCII characters of texts: the meaning of a logbook's other bytes depends on the
// code page of the day.
class Checksum {
  public:
    Checksum() : state_(XXH3_createState(), XXH3_freeState) {
        if (!state_)
            throw std::bad_alloc();
        XXH3_128bits_reset(state_.get());
    }

    void Add(const void* bytes, std::size_t count) { XXH3_128bits_update(state_.get(), bytes, count); }

    // Also adds their number, so that neighbouring texts do not run together.
    void AddText(std::string_view text) {
        std::uint64_t count = 0;
        for (; !text.empty(); text.remove_prefix(std::min(text.size(), ascii_.size())))
            count += AddAscii(text.substr(0, ascii_.size()));
        Add(&count, sizeof count);
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

    std::size_t AddAscii(std::string_view part) {
        std::size_t count = 0;
        for (const char byte : part) {
            ascii_[count] = byte;
            count += static_cast<unsigned char>(byte) < 0x80U ? 1 : 0;
        }
        Add(ascii_.data(), count);
        return count;
    }

    std::array<char, 16384> ascii_;
    std::unique_ptr<XXH3_state_t, XXH_errorcode (*)(XXH3_state_t*)> state_;
};

// The values that an entry adds to the texts, without padding.
struct EntryPart {
    std::uint32_t Kind = 0;
    std::uint32_t Date = 0;
    std::uint32_t Clock = 0;
    std::uint32_t HasStampInText = 0;
};
static_assert(sizeof(EntryPart) == 16);

std::string_view TextOf(const EntryTable& entries, EntryNumber number) {
    const std::size_t begin = entries.TextBegin(number);
    return entries.Text().substr(begin, entries.TextBegin(number + 1) - begin);
}

EntryPart PartOf(const EntryTable& entries, EntryNumber number) {
    EntryPart part{.Kind = entries.KindNumber(number)};
    PackedStamp stamp;
    part.HasStampInText = entries.PackedTime(number, stamp) ? 0 : 1;
    part.Date = stamp.Date;
    part.Clock = stamp.Clock;
    return part;
}

// Numbers recurring values in the order of their first use.
class FirstUses {
  public:
    explicit FirstUses(std::size_t count) : numbers_(count, Unused) {}

    // The number, and whether this is the first use.
    std::pair<std::uint32_t, bool> operator[](std::uint32_t item) {
        const bool isFirst = numbers_[item] == Unused;
        if (isFirst)
            numbers_[item] = next_++;
        return {numbers_[item], isFirst};
    }

  private:
    static constexpr std::uint32_t Unused = ~std::uint32_t{0};
    std::vector<std::uint32_t> numbers_;
    std::uint32_t next_ = 0;
};

void AddKind(Checksum& sum, const EntryKind& kind) {
    sum.Add(&kind.EventType, sizeof kind.EventType);
    sum.Add(&kind.Image, sizeof kind.Image);
    sum.AddText(kind.Sender);
    sum.AddText(kind.Name);
}

// Adds entry after entry; adds a kind or a date where it first occurs.
class Beginning {
  public:
    explicit Beginning(const EntryTable& entries)
        : entries_(entries), kinds_(entries.Kinds().Count()), dates_(entries.Stamps().DateCount()) {}

    void Add(EntryNumber number) {
        EntryPart part;
        PackedStamp stamp;
        const bool hasClock = entries_.PackedTime(number, stamp);
        const auto [kind, isNewKind] = kinds_[entries_.KindNumber(number)];
        part.Kind = kind;
        bool isNewDate = false;
        if (hasClock) {
            std::tie(part.Date, isNewDate) = dates_[stamp.Date];
            part.Clock = stamp.Clock;
        }
        part.HasStampInText = hasClock ? 0 : 1;
        sum_.Add(&part, sizeof part);
        if (isNewKind)
            AddKind(sum_, entries_.Kind(number));
        if (isNewDate)
            sum_.AddText(entries_.Stamps().DateText(stamp.Date));
        const std::string_view data = entries_.Data(number);
        sum_.AddText(data);
        if (!hasClock)
            sum_.AddText(TextOf(entries_, number).substr(data.size()));
    }

    std::string Digits() const { return sum_.Digits(); }

  private:
    const EntryTable& entries_;
    Checksum sum_;
    FirstUses kinds_;
    FirstUses dates_;
};

} // namespace

std::vector<std::string> ChecksumsOfBeginnings(const EntryTable& entries,
                                               std::span<const EntryNumber> counts) {
    Beginning beginning(entries);
    std::vector<std::string> sums;
    EntryNumber next = 0;
    for (const EntryNumber count : counts) {
        for (; next < count; ++next)
            beginning.Add(next);
        sums.push_back(beginning.Digits());
    }
    return sums;
}

std::string ChecksumOfEntry(const EntryTable& entries, EntryNumber number) {
    Checksum sum;
    sum.AddText(entries.Time(number));
    sum.AddText(entries.Kind(number).Sender);
    sum.AddText(entries.Kind(number).Name);
    return sum.Digits();
}

std::string LogbookChecksum(const EntryTable& entries) {
    Checksum sum;
    for (std::uint32_t i = 0; i < entries.Kinds().Count(); ++i)
        AddKind(sum, entries.Kinds()[i]);
    for (std::uint32_t i = 0; i < entries.Stamps().DateCount(); ++i)
        sum.AddText(entries.Stamps().DateText(i));
    for (EntryNumber number = 0; number < entries.Count(); ++number) {
        const EntryPart part = PartOf(entries, number);
        sum.Add(&part, sizeof part);
        sum.AddText(TextOf(entries, number));
    }
    return sum.Digits();
}
