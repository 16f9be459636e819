// SPDX-License-Identifier: MIT
#pragma once

#include "filter/NumberList.h"
#include "filter/RangeIndex.h"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

// A number list of any length that is changed number after number, each at a cost of the logarithm of the
// number of parts. Its text is made once, at the end. Parts that do not change keep their text, whatever it
// is.
//
// However often numbers go and come, none that was added stands in more than four parts, so that there are
// never more than four times as many parts as numbers.
class NumberListEditor {
  public:
    // Puts the parts of a list behind the others.
    void Append(std::string_view list);

    // Adds the number; true when that changed the list. One that matches the number stays as it is. Otherwise
    // every part that ends or begins next to the number is extended to it, and the two are not merged (3,5
    // with 4 is 3-4,4-5); when there is none, the number comes behind the others. Where more than two parts
    // end next to the number, or begin there, the widest takes the place of them all, extended and behind the
    // others.
    bool Add(EntryNumber number);

    // Takes the number out; true when that changed the list. What remains of a part that holds it is written
    // as one part or two (4-9 without 6 is 4-5,7-9), or left out.
    bool Remove(EntryNumber number);

    std::string Text() const;

  private:
    using PartId = std::uint32_t;
    static constexpr PartId None = std::numeric_limits<PartId>::max();

    struct Part {
        bool IsRange = false; // else it matches nothing
        NumberRange Range;
        std::string Typed; // its text, when the range does not give it
        PartId Before = None;
        PartId Next = None;
    };

    // The parts that hold the number or lie next to it.
    std::vector<PartId> PartsNear(EntryNumber number) const;

    void Extend(const std::vector<PartId>& parts, EntryNumber number);
    bool Holds(PartId id, EntryNumber number) const;
    void InsertBehind(PartId before, Part part);
    void SetRange(PartId id, NumberRange range);
    void Erase(PartId id);
    void TakeOut(PartId id, EntryNumber number);

    std::vector<Part> parts_; // by id; some are in the list no more
    PartId first_ = None;
    PartId last_ = None;
    RangeIndex index_;
};
