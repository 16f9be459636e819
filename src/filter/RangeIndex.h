// SPDX-License-Identifier: MIT
#pragma once

#include "filter/NumberList.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <set>
#include <utility>

// Finds ranges by the numbers that they hold. Ranges may overlap; each has its own id. A look-up, an
// insertion and a move cost the logarithm of the number of ranges; a look-up also costs one step for each
// range found.
class RangeIndex {
  public:
    void Insert(NumberRange range, std::uint32_t id) { SetFor(range).insert({range.First, id}); }
    void Erase(NumberRange range, std::uint32_t id) { SetFor(range).erase({range.First, id}); }

    // Makes a range grow or shrink.
    void Move(NumberRange from, NumberRange to, std::uint32_t id) {
        Ranges& before = SetFor(from);
        if (from.First == to.First && &before == &SetFor(to))
            return;
        auto node = before.extract({from.First, id});
        node.value().first = to.First;
        SetFor(to).insert(std::move(node));
    }

    // Calls `visit` with the id of every range that holds or touches the number, and of few others.
    template <typename Visit>
    void VisitNear(EntryNumber number, Visit visit) const {
        for (std::size_t width = 0; width < byWidth_.size(); ++width) {
            const Ranges& ranges = byWidth_[width];
            if (ranges.empty())
                continue;
            // A range of this width begins at most this far below a number that it holds or touches.
            const std::uint64_t reach = std::uint64_t{1} << width;
            const EntryNumber lowest = number > reach ? static_cast<EntryNumber>(number - reach) : 0;
            for (auto range = ranges.lower_bound({lowest, 0});
                 range != ranges.end() && (range->first <= number || range->first - 1 == number); ++range)
                visit(range->second);
        }
    }

  private:
    using Ranges = std::set<std::pair<EntryNumber, std::uint32_t>>; // lower bound and id

    static constexpr std::size_t Widths = std::numeric_limits<EntryNumber>::digits + 1;

    Ranges& SetFor(NumberRange range) {
        return byWidth_[static_cast<std::size_t>(std::bit_width(range.Last - range.First))];
    }

    // By the number of binary digits of the distance between the bounds. All ranges of a set are about
    // equally wide, so that those near a number stand together.
    std::array<Ranges, Widths> byWidth_;
};
