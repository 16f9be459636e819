// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

// How the process that reads a help file sends its members: for each member the length of its path, the
// length of its content, then path and content; at the end a head with path length AtEnd and no content.
struct MemberHead {
    static constexpr std::uint64_t AtEnd = ~std::uint64_t{0};

    std::uint64_t PathLength = AtEnd;
    std::uint64_t ContentLength = 0;
};

// A help file with more content than this counts as damaged.
constexpr std::size_t MostHelpBytes = std::size_t{64} << 20;
