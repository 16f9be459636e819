// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// A small source of chance. The same seed gives the same throws on every platform, which the standard
// distributions do not promise.
class Dice {
  public:
    explicit Dice(std::uint64_t seed) : state(seed) {}

    std::uint64_t Throw() {
        state += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31);
    }

    // A number from 0 to bound - 1; the bound must not be 0.
    std::uint64_t Below(std::uint64_t bound) { return Throw() % bound; }

    // A number from `low` to `high`, both included.
    std::uint64_t Between(std::uint64_t low, std::uint64_t high) { return low + Below(high - low + 1); }

    // True once in `count` throws.
    bool OneIn(std::uint64_t count) { return Below(count) == 0; }

    // One row of a table, which must not be empty.
    template <typename Table>
    const auto& Pick(const Table& table) {
        return table[static_cast<std::size_t>(Below(std::size(table)))];
    }

  private:
    std::uint64_t state;
};
