// SPDX-License-Identifier: MIT
// Any text as a number list, changed by numbers. The first line has a byte for each change, whose lowest bit
// chooses removal or addition; below it stands the list.
#include "FuzzSupport.h"
#include "base/UnicodeCase.h"
#include "filter/NumberList.h"
#include "filter/NumberListEditor.h"
#include "filter/WrappedNumberList.h"

#include <algorithm>
#include <limits>

namespace {

constexpr EntryNumber Highest = std::numeric_limits<EntryNumber>::max();
constexpr EntryNumber ProbesTo = 140;

// Numbers near 0, and near the highest one.
EntryNumber NumberOf(unsigned char byte) {
    const auto number = static_cast<EntryNumber>(byte >> 1U);
    return byte >= 0xF8 ? Highest - (number & 3U) : number;
}

bool IsInRanges(const std::vector<NumberRange>& ranges, EntryNumber number) {
    return std::any_of(ranges.begin(), ranges.end(), [&](const NumberRange& range) {
        return range.First <= number && number <= range.Last;
    });
}

void CheckRanges(std::string_view list) {
    const std::vector<NumberRange> ranges = ParseNumberList(list);
    for (std::size_t i = 0; i < ranges.size(); ++i)
        Check(ranges[i].First <= ranges[i].Last && (i == 0 || ranges[i - 1].Last < ranges[i].First));
    for (EntryNumber number = 0; number < ProbesTo; ++number)
        Check(IsInRanges(ranges, number) == MatchNumberList(number, list));
    for (EntryNumber number = Highest; number > Highest - 5; --number)
        Check(IsInRanges(ranges, number) == MatchNumberList(number, list));
}

// A change changes what is told of one number.
void CheckChange(std::string_view before, const std::string& after, EntryNumber number, bool removed) {
    Check(MatchNumberList(number, after) != removed);
    const std::vector<NumberRange> old = ParseNumberList(before);
    const std::vector<NumberRange> now = ParseNumberList(after);
    const auto checkOther = [&](EntryNumber other) {
        Check(other == number || IsInRanges(old, other) == IsInRanges(now, other));
    };
    for (EntryNumber other = 0; other < ProbesTo; ++other)
        checkOther(other);
    for (EntryNumber other = Highest; other > Highest - 5; --other)
        checkOther(other);
    Check(MatchNumberList(number, before) == removed || after == before);
}

// The list as texts with little room names the same numbers and, empty parts aside, is made from them again.
void CheckWrapped(const std::string& list) {
    constexpr std::size_t FirstRoom = 12;
    constexpr std::size_t Room = 24; // for any range
    const std::vector<std::string> texts = WrapNumberList(list, FirstRoom, Room);
    std::string joined;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::size_t room = i == 0 ? FirstRoom : Room;
        Check(CharacterCount(texts[i]) <= room || texts[i].find(',') == std::string::npos);
        Check(i + 1 == texts.size() || texts[i + 1].empty() || GoesOnIn(texts[i], room, texts[i + 1]));
        joined += (joined.empty() ? "" : ",") + texts[i];
    }
    Check(ParseNumberList(joined) == ParseNumberList(list));
    Check(joined.size() <= list.size());
    Check(WrapNumberList(joined, FirstRoom, Room) == texts || joined.size() < list.size());
}

void CheckEditor(std::string_view changes, std::string_view list) {
    NumberListEditor editor;
    editor.Append(list);
    for (const char change : changes) {
        const auto byte = static_cast<unsigned char>(change);
        const EntryNumber number = NumberOf(byte);
        const bool removes = (byte & 1U) != 0;
        const std::string before = editor.Text();
        const bool changed = removes ? editor.Remove(number) : editor.Add(number);
        Check(changed == (editor.Text() != before));
        Check(MatchNumberList(number, editor.Text()) != removes);
    }
    CheckWrapped(editor.Text());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t MostChanges = 40;
    std::string_view rest = TextOf(data, size);
    const std::string_view changes = TakeLine(rest).substr(0, MostChanges);
    CheckRanges(rest);
    std::string list(rest);
    for (const char change : changes) {
        const auto byte = static_cast<unsigned char>(change);
        const EntryNumber number = NumberOf(byte);
        const bool removes = (byte & 1U) != 0;
        NumberListEditor editor;
        editor.Append(list);
        removes ? editor.Remove(number) : editor.Add(number);
        const std::string after = editor.Text();
        CheckChange(list, after, number, removes);
        list = after;
    }
    CheckRanges(list);
    CheckEditor(changes, rest);
    CheckWrapped(std::string(rest));
    return 0;
}
