// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

#if defined(__linux__)
#include <sys/mman.h>
#endif

// Asks for pages of two megabytes for memory that is about to be filled from its begin on, where the system
// has them for the asking. Touching memory for the first time costs a large read as much as copying the file
// in; with such pages it costs a third. A wish only: nothing depends on it.
inline void PreferHugePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) {
#if defined(__linux__)
    constexpr std::uintptr_t HugePage = std::uintptr_t{2} << 20U;
    const auto begin = reinterpret_cast<std::uintptr_t>(memory);
    const std::uintptr_t first = (begin + HugePage - 1) / HugePage * HugePage;
    const std::uintptr_t end = (begin + size) / HugePage * HugePage;
    if (first < end)
        madvise(static_cast<char*>(memory) + (first - begin), end - first, MADV_HUGEPAGE);
#endif
}
