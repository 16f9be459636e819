// SPDX-License-Identifier: MIT
#pragma once

#include "filter/NumberList.h"
#include "filter/RangeIndex.h"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

// Changes a number list of any length number by number. A change costs the logarithm of the number of parts.
// The text is made once, at the end. Parts that do not change keep their text, whatever it is.
//
// However often numbers are added and removed, an added number stands in at most four parts, so that there
// are never more than four times as many parts as numbers.
class NumberListEditor {
  public:
    // Appends the parts of a list.
    void Append(std::string_view list);

    // Adds the number. True when the list changed; a list that matches the number stays as it is. Otherwise
    // every part that ends or begins next to the number is extended to it, and the parts are not merged (3,5
    // with 4 is 3-4,4-5). When there is no such part, the number is appended. When more than two parts end
    // next to the number, or begin there, the widest replaces them all; it is extended and moved to the end.
    bool Add(EntryNumber number);

    // Removes the number. True when the list changed. The rest of a part that holds the number becomes one
    // part or two (4-9 without 6 is 4-5,7-9), or none.
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
