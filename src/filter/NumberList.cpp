// SPDX-License-Identifier: MIT
#include "filter/NumberList.h"

#include "base/Blanks.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace {

std::optional<EntryNumber> ParseNumber(std::string_view text) {
    text = Trim(text);
    EntryNumber number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (text.empty() || rest != end || error == std::errc::invalid_argument)
        return std::nullopt;
    return error == std::errc::result_out_of_range ? std::numeric_limits<EntryNumber>::max() : number;
}

} // namespace

std::optional<NumberRange> ParseNumberPart(std::string_view part) {
    const std::size_t dash = part.find('-');
    const std::optional<EntryNumber> first = ParseNumber(part.substr(0, dash));
    const std::optional<EntryNumber> last =
        dash == std::string_view::npos ? first : ParseNumber(part.substr(dash + 1));
    if (!first || !last || *first > *last)
        return std::nullopt;
    return NumberRange{*first, *last};
}

std::vector<NumberRange> ParseNumberList(std::string_view list) {
    std::vector<NumberRange> parts;
    AnyNumberPart(list, [&](std::string_view part) {
        if (const std::optional<NumberRange> range = ParseNumberPart(part))
            parts.push_back(*range);
        return false;
    });
    std::sort(parts.begin(), parts.end(),
              [](const NumberRange& a, const NumberRange& b) { return a.First < b.First; });
    std::vector<NumberRange> ranges;
    for (const NumberRange& part : parts) {
        if (ranges.empty() || part.First > ranges.back().Last)
            ranges.push_back(part);
        else
            ranges.back().Last = std::max(ranges.back().Last, part.Last);
    }
    return ranges;
}

bool MatchNumberList(EntryNumber entry, std::string_view list) {
    return AnyNumberPart(list, [&](std::string_view part) {
        const std::optional<NumberRange> range = ParseNumberPart(part);
        return range && range->First <= entry && entry <= range->Last;
    });
}

std::string FormatNumberRange(NumberRange range) {
    std::string text = std::to_string(range.First);
    return range.First == range.Last ? text : text + "-" + std::to_string(range.Last);
}

std::string ShiftNumberList(std::string_view list, std::int64_t shift) {
    constexpr std::int64_t Largest = std::numeric_limits<EntryNumber>::max();
    std::string shifted;
    AnyNumberPart(list, [&](std::string_view part) {
        const std::optional<NumberRange> range = ParseNumberPart(part);
        if (!range || range->Last + shift < 0)
            return false;
        const NumberRange moved{
            static_cast<EntryNumber>(std::clamp<std::int64_t>(range->First + shift, 0, Largest)),
            static_cast<EntryNumber>(std::clamp<std::int64_t>(range->Last + shift, 0, Largest))};
        shifted.append(shifted.empty() ? "" : ",").append(FormatNumberRange(moved));
        return false;
    });
    return shifted;
}
