// SPDX-License-Identifier: MIT
#pragma once

#include "filter/NumberList.h"
#include "filter/RangeIndex.h"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

// Changes a number list of any length number by number, with the results of AddToNumberList and
// RemoveFromNumberList. A change costs the logarithm of the number of parts. The text is made once, at the
// end.
//
// However often numbers are added and removed, an added number stands in at most four parts, so that there
// are never more than four times as many parts as numbers.
class NumberListEditor {
  public:
    // Appends the parts of a list.
    void Append(std::string_view list);

    // True when the list changed.
    bool Add(EntryNumber number);
    bool Remove(EntryNumber number);

    std::string Text() const;

  private:
    using PartId = std::uint32_t;
    static constexpr PartId None = std::numeric_limits<PartId>::max();

    struct Part {
        bool IsRange = false; // otherwise it matches nothing
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

    std::vector<Part> parts_; // by id; some are no longer in the list
    PartId first_ = None;
    PartId last_ = None;
    RangeIndex index_;
};
