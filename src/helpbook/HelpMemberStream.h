// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

// How the process that reads a help file hands its members over: for each member the length of its path, that
// of its content, and both; at the end a head with this path length and without content.
struct MemberHead {
    static constexpr std::uint64_t AtEnd = ~std::uint64_t{0};

    std::uint64_t PathLength = AtEnd;
    std::uint64_t ContentLength = 0;
};

// A help file with more content than this counts as damaged.
constexpr std::size_t MostHelpBytes = std::size_t{64} << 20;
