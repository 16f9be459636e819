// SPDX-License-Identifier: MIT
#include "filter/NumberListEditor.h"

#include <algorithm>
#include <optional>
#include <utility>

void NumberListEditor::Append(std::string_view list) {
    if (list.empty())
        return;
    AnyNumberPart(list, [&](std::string_view text) {
        Part part;
        const std::optional<NumberRange> range = ParseNumberPart(text);
        part.IsRange = range.has_value();
        part.Range = range.value_or(NumberRange{});
        if (!range || FormatNumberRange(*range) != text)
            part.Typed = text;
        InsertBehind(last_, std::move(part));
        return false;
    });
}

bool NumberListEditor::Add(EntryNumber number) {
    const std::vector<PartId> near = PartsNear(number);
    if (std::any_of(near.begin(), near.end(), [&](PartId id) { return Holds(id, number); }))
        return false;
    std::vector<PartId> below;
    std::vector<PartId> above;
    for (const PartId id : near)
        (parts_[id].Range.Last < number ? below : above).push_back(id);
    Extend(below, number);
    Extend(above, number);
    if (near.empty())
        InsertBehind(last_, {true, {number, number}, {}});
    return true;
}

bool NumberListEditor::Remove(EntryNumber number) {
    bool removed = false;
    for (const PartId id : PartsNear(number)) {
        if (!Holds(id, number))
            continue;
        TakeOut(id, number);
        removed = true;
    }
    // An empty part that stands alone is an empty list.
    if (first_ != None && first_ == last_ && !parts_[first_].IsRange && parts_[first_].Typed.empty())
        Erase(first_);
    return removed;
}

std::string NumberListEditor::Text() const {
    std::string text;
    for (PartId id = first_; id != None; id = parts_[id].Next) {
        const Part& part = parts_[id];
        if (id != first_)
            text += ',';
        text += part.Typed.empty() && part.IsRange ? FormatNumberRange(part.Range) : part.Typed;
    }
    return text;
}

std::vector<NumberListEditor::PartId> NumberListEditor::PartsNear(EntryNumber number) const {
    std::vector<PartId> near;
    index_.VisitNear(number, [&](PartId id) {
        const NumberRange range = parts_[id].Range;
        if (Holds(id, number) || (range.First > 0 && range.First - 1 == number) ||
            (number > 0 && range.Last == number - 1))
            near.push_back(id);
    });
    return near;
}

// Extends the parts that all end, or all begin, next to the number. When there are more than two, the widest,
// which holds the others, replaces them at the end of the list: otherwise the parts could double with every
// number that is added and removed.
void NumberListEditor::Extend(const std::vector<PartId>& parts, EntryNumber number) {
    constexpr std::size_t MostExtended = 2;
    NumberRange widest{number, number};
    for (const PartId id : parts) {
        const NumberRange range = parts_[id].Range;
        const NumberRange extended{std::min(range.First, number), std::max(range.Last, number)};
        widest = {std::min(widest.First, extended.First), std::max(widest.Last, extended.Last)};
        if (parts.size() <= MostExtended)
            SetRange(id, extended);
        else
            Erase(id);
    }
    if (parts.size() > MostExtended)
        InsertBehind(last_, {true, widest, {}});
}

bool NumberListEditor::Holds(PartId id, EntryNumber number) const {
    const NumberRange range = parts_[id].Range;
    return range.First <= number && number <= range.Last;
}

void NumberListEditor::InsertBehind(PartId before, Part part) {
    const auto id = static_cast<PartId>(parts_.size());
    part.Before = before;
    part.Next = before == None ? first_ : parts_[before].Next;
    (before == None ? first_ : parts_[before].Next) = id;
    (part.Next == None ? last_ : parts_[part.Next].Before) = id;
    if (part.IsRange)
        index_.Insert(part.Range, id);
    parts_.push_back(std::move(part));
}

void NumberListEditor::SetRange(PartId id, NumberRange range) {
    Part& part = parts_[id];
    index_.Move(part.Range, range, id);
    part.Range = range;
    part.Typed.clear();
}

void NumberListEditor::Erase(PartId id) {
    const Part& part = parts_[id];
    if (part.IsRange)
        index_.Erase(part.Range, id);
    (part.Before == None ? first_ : parts_[part.Before].Next) = part.Next;
    (part.Next == None ? last_ : parts_[part.Next].Before) = part.Before;
}

void NumberListEditor::TakeOut(PartId id, EntryNumber number) {
    const NumberRange range = parts_[id].Range;
    const bool below = range.First < number;
    const bool above = number < range.Last;
    if (below && above)
        InsertBehind(id, {true, {number + 1, range.Last}, {}});
    if (below)
        SetRange(id, {range.First, number - 1});
    else if (above)
        SetRange(id, {number + 1, range.Last});
    else
        Erase(id);
}
