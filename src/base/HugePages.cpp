// SPDX-License-Identifier: MIT
#include "base/HugePages.h"

#include <cstdint>

#if defined(__linux__)
#include <sys/mman.h>
#endif

void PreferHugePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) {
#if defined(__linux__)
    constexpr std::uintptr_t HugePage = std::uintptr_t{2} << 20U;
    const auto begin = reinterpret_cast<std::uintptr_t>(memory);
    const std::uintptr_t first = (begin + HugePage - 1) / HugePage * HugePage;
    const std::uintptr_t end = (begin + size) / HugePage * HugePage;
    if (first < end)
        madvise(static_cast<char*>(memory) + (first - begin), end - first, MADV_HUGEPAGE);
#endif
}
