// SPDX-License-Identifier: MIT
#pragma once

#include "filter/NumberList.h"
#include "filter/RangeIndex.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Number lists of limited length that together name entries: what one list has no room for stands in a later
// one. Numbers are added and taken out one after the other, each as AddToNumberList and RemoveFromNumberList
// do it in a single list, at a cost of the logarithm of the number of parts; texts are made once, at the end.
class NumberLists {
  public:
    // `newListRoom`: the most characters that the text of a list may have which is made here. It has room for
    // any range of numbers.
    explicit NumberLists(std::size_t newListRoom) : newListRoom_(newListRoom) {}

    // Puts a list behind the others. Its text may have at most `room` characters after a change.
    void Append(std::string_view text, std::size_t room);

    // Adds the number to the first list that holds it already or has room for it, else to a new one.
    void Add(EntryNumber number);

    // Takes the number out of every list that holds it. Parts at the end of a list that has no room left for
    // what remains (4-9 without 6 is longer than 4-9) go to a later list. When no list holds the number, the
    // first one counts as used. False when there is no list.
    bool Remove(EntryNumber number);

    std::size_t Count() const { return lists_.size(); }

    // An addition or a removal has used the list, which may still be as it was.
    bool IsUsed(std::size_t place) const { return lists_[place].Used; }
    std::string Text(std::size_t place) const;

  private:
    using PartId = std::uint32_t;

    struct Part {
        std::uint32_t List = 0;
        bool IsRange = false; // else it matches nothing
        NumberRange Range;
        std::string Typed; // its text, when the range does not give it
    };
    struct List {
        std::size_t Room = 0;
        std::size_t Length = 0; // of the text, in characters
        bool Used = false;
        std::vector<PartId> Parts;
    };

    // Digits of the largest number.
    static constexpr std::size_t MostDigits = 10;

    // The parts that hold the number or lie next to it, in the order of the lists and of the parts in them.
    std::vector<PartId> PartsNear(EntryNumber number) const;

    static std::size_t Length(const Part& part);
    bool HasRoom(std::size_t list, std::size_t partLength) const;
    std::size_t NextWithRoom(std::size_t from, std::size_t partLength);
    void Resize(std::size_t list, std::size_t before, std::size_t after);

    bool Extend(std::vector<PartId>::const_iterator begin, std::vector<PartId>::const_iterator end,
                EntryNumber number);
    void AppendPart(std::size_t list, Part part);
    void SetRange(PartId id, NumberRange range);
    void InsertBehind(PartId id, NumberRange range);
    void Erase(PartId id);
    void DropLoneEmptyPart(std::size_t list);
    void TakeOut(PartId id, EntryNumber number);
    bool MoveLastPart(std::size_t list);

    std::size_t newListRoom_;
    std::vector<Part> parts_; // by id; some are in no list any more
    std::vector<List> lists_;
    RangeIndex index_;

    // By the length of a part: no list before this one has room for it.
    std::array<std::size_t, MostDigits + 1> firstWithRoom_{};
};
