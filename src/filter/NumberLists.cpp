// SPDX-License-Identifier: MIT
#include "filter/NumberLists.h"

#include "settings/Registry.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

std::size_t Digits(EntryNumber number) {
    std::size_t digits = 1;
    for (; number >= 10; number /= 10)
        ++digits;
    return digits;
}

std::size_t LengthOf(NumberRange range) {
    return Digits(range.First) + (range.First == range.Last ? 0 : 1 + Digits(range.Last));
}

bool IsIn(EntryNumber number, NumberRange range) { return range.First <= number && number <= range.Last; }

// The range with the number that lies next to it.
NumberRange Extended(NumberRange range, EntryNumber number) {
    return {std::min(range.First, number), std::max(range.Last, number)};
}

} // namespace

std::size_t NumberLists::Length(const Part& part) {
    return part.Typed.empty() && part.IsRange ? LengthOf(part.Range) : Registry::CharacterCount(part.Typed);
}

void NumberLists::Append(std::string_view text, std::size_t room) {
    const std::size_t list = lists_.size();
    lists_.push_back({room, 0, false, {}});
    const auto append = [&](std::string_view partText) {
        Part part;
        const std::optional<NumberRange> range = ParseNumberPart(partText);
        part.IsRange = range.has_value();
        part.Range = range.value_or(NumberRange{});
        if (!range || FormatNumberRange(*range) != partText)
            part.Typed = partText;
        AppendPart(list, std::move(part));
        return false;
    };
    if (!text.empty())
        AnyNumberPart(text, append);
    lists_[list].Used = false;
}

std::string NumberLists::Text(std::size_t place) const {
    std::string text;
    for (std::size_t i = 0; i < lists_[place].Parts.size(); ++i) {
        const Part& part = parts_[lists_[place].Parts[i]];
        if (i > 0)
            text += ',';
        text += part.Typed.empty() && part.IsRange ? FormatNumberRange(part.Range) : part.Typed;
    }
    return text;
}

void NumberLists::Add(EntryNumber number) {
    const std::vector<PartId> near = PartsNear(number);
    const std::size_t length = Digits(number);
    std::size_t withRoom = NextWithRoom(0, length);
    for (auto part = near.begin(); part != near.end();) {
        const std::uint32_t list = parts_[*part].List;
        if (withRoom < list)
            break;
        const auto end =
            std::find_if(part, near.end(), [&](PartId other) { return parts_[other].List != list; });
        const bool held = std::any_of(part, end, [&](PartId id) { return IsIn(number, parts_[id].Range); });
        if (held || Extend(part, end, number)) {
            lists_[list].Used = true;
            return;
        }
        if (withRoom == list)
            withRoom = NextWithRoom(list + 1, length);
        part = end;
    }
    if (withRoom == lists_.size())
        Append({}, newListRoom_);
    AppendPart(withRoom, {0, true, {number, number}, {}});
}

bool NumberLists::Remove(EntryNumber number) {
    if (lists_.empty())
        return false;
    std::vector<std::uint32_t> changed;
    for (const PartId id : PartsNear(number))
        if (IsIn(number, parts_[id].Range)) {
            changed.push_back(parts_[id].List);
            TakeOut(id, number);
        }
    if (changed.empty())
        lists_.front().Used = true;
    for (const std::uint32_t list : changed)
        while (lists_[list].Length > lists_[list].Room && MoveLastPart(list)) {
        }
    return true;
}

std::vector<NumberLists::PartId> NumberLists::PartsNear(EntryNumber number) const {
    std::vector<PartId> near;
    index_.VisitNear(number, [&](PartId id) {
        const NumberRange range = parts_[id].Range;
        if (IsIn(number, range) || (range.First > 0 && range.First - 1 == number) ||
            (number > 0 && range.Last == number - 1))
            near.push_back(id);
    });
    std::sort(near.begin(), near.end(), [&](PartId a, PartId b) { return parts_[a].List < parts_[b].List; });
    return near;
}

bool NumberLists::HasRoom(std::size_t list, std::size_t partLength) const {
    const List& l = lists_[list];
    return l.Length + (l.Parts.empty() ? 0 : 1) + partLength <= l.Room;
}

// The first list from a place on that has room for a part, or Count.
std::size_t NumberLists::NextWithRoom(std::size_t from, std::size_t partLength) {
    std::size_t& known = firstWithRoom_[std::min(partLength, MostDigits)];
    std::size_t list = std::max(from, known);
    while (list < lists_.size() && !HasRoom(list, partLength))
        ++list;
    if (from <= known && partLength <= MostDigits)
        known = list;
    return list;
}

// Part of a list's text has become longer or shorter.
void NumberLists::Resize(std::size_t list, std::size_t before, std::size_t after) {
    lists_[list].Length = lists_[list].Length - before + after;
    lists_[list].Used = true;
    if (after < before)
        for (std::size_t& first : firstWithRoom_)
            first = std::min(first, list);
}

// Extends parts of one list, all next to the number, unless there is no room for what they become.
bool NumberLists::Extend(std::vector<PartId>::const_iterator begin, std::vector<PartId>::const_iterator end,
                         EntryNumber number) {
    const List& list = lists_[parts_[*begin].List];
    std::size_t before = 0;
    std::size_t after = 0;
    for (auto id = begin; id != end; ++id) {
        before += Length(parts_[*id]);
        after += LengthOf(Extended(parts_[*id].Range, number));
    }
    if (list.Length - before + after > list.Room)
        return false;
    for (auto id = begin; id != end; ++id)
        SetRange(*id, Extended(parts_[*id].Range, number));
    return true;
}

void NumberLists::AppendPart(std::size_t list, Part part) {
    const auto id = static_cast<PartId>(parts_.size());
    part.List = static_cast<std::uint32_t>(list);
    if (part.IsRange)
        index_.Insert(part.Range, id);
    Resize(list, 0, Length(part) + (lists_[list].Parts.empty() ? 0 : 1));
    lists_[list].Parts.push_back(id);
    parts_.push_back(std::move(part));
}

void NumberLists::SetRange(PartId id, NumberRange range) {
    Part& part = parts_[id];
    Resize(part.List, Length(part), LengthOf(range));
    index_.Move(part.Range, range, id);
    part.Range = range;
    part.Typed.clear();
}

void NumberLists::InsertBehind(PartId id, NumberRange range) {
    const std::uint32_t list = parts_[id].List;
    const auto newId = static_cast<PartId>(parts_.size());
    index_.Insert(range, newId);
    Resize(list, 0, 1 + LengthOf(range));
    std::vector<PartId>& ids = lists_[list].Parts;
    ids.insert(std::find(ids.begin(), ids.end(), id) + 1, newId);
    parts_.push_back({list, true, range, {}});
}

void NumberLists::Erase(PartId id) {
    const Part& part = parts_[id];
    if (part.IsRange)
        index_.Erase(part.Range, id);
    std::vector<PartId>& ids = lists_[part.List].Parts;
    Resize(part.List, Length(part) + (ids.size() > 1 ? 1 : 0), 0);
    ids.erase(std::find(ids.begin(), ids.end(), id));
    DropLoneEmptyPart(part.List);
}

// An empty part that stands alone is an empty list.
void NumberLists::DropLoneEmptyPart(std::size_t list) {
    std::vector<PartId>& ids = lists_[list].Parts;
    if (ids.size() == 1 && lists_[list].Length == 0)
        ids.clear();
}

void NumberLists::TakeOut(PartId id, EntryNumber number) {
    const NumberRange range = parts_[id].Range;
    const bool below = range.First < number;
    const bool above = number < range.Last;
    if (below && above)
        InsertBehind(id, {number + 1, range.Last});
    if (below)
        SetRange(id, {range.First, number - 1});
    else if (above)
        SetRange(id, {number + 1, range.Last});
    else
        Erase(id);
}

// False when not even a new list has room for it.
bool NumberLists::MoveLastPart(std::size_t list) {
    const PartId id = lists_[list].Parts.back();
    const std::size_t length = Length(parts_[id]);
    const std::size_t to = NextWithRoom(list + 1, length);
    if (to == lists_.size()) {
        if (length > newListRoom_)
            return false;
        Append({}, newListRoom_);
    }
    Part part = parts_[id];
    Erase(id);
    AppendPart(to, std::move(part));
    DropLoneEmptyPart(to);
    return true;
}
