// SPDX-License-Identifier: MIT
#include "rows/RadixSort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>

namespace {

struct Items {
    explicit Items(std::size_t count) : First(count), Second(count), Sorted(First), Scratch(Second) {
        std::mt19937_64 random(3);
        for (std::uint32_t i = 0; i < count; ++i) {
            First[i].SetSortKey(random() >> random() % 64);
            First[i].Number = i;
        }
    }

    bool Sort(const SortHook& hook) {
        SortProgress progress(hook);
        progress.BeginPhase(100, Sorted.size());
        return RadixSort(
            Sorted, Scratch, [](const Keyed<std::uint64_t>& item) { return item.SortKey(); }, progress);
    }

    std::vector<Keyed<std::uint64_t>> First;
    std::vector<Keyed<std::uint64_t>> Second;
    std::span<Keyed<std::uint64_t>> Sorted;
    std::span<Keyed<std::uint64_t>> Scratch;
};

} // namespace

TEST(RadixSort, IsAStableSort) {
    // On both sides of the count from which on digits are wide.
    for (const std::size_t count : {0U, 1U, 300U, 65535U, 65536U, 70000U}) {
        Items items(count);
        std::vector<Keyed<std::uint64_t>> expected = items.First;
        std::stable_sort(expected.begin(), expected.end(),
                         [](const auto& a, const auto& b) { return a.SortKey() < b.SortKey(); });
        ASSERT_TRUE(items.Sort({}));
        EXPECT_TRUE(std::equal(
            items.Sorted.begin(), items.Sorted.end(), expected.begin(), expected.end(),
            [](const auto& a, const auto& b) { return a.SortKey() == b.SortKey() && a.Number == b.Number; }))
            << count;
    }
}

TEST(RadixSort, MayBeStoppedAtAnyCall) {
    int calls = 0;
    EXPECT_TRUE(Items(100000).Sort([&](int) { return ++calls > 0; }));
    ASSERT_GT(calls, 3);
    for (int last = 0; last < calls; ++last) {
        int call = 0;
        EXPECT_FALSE(Items(100000).Sort([&](int) { return call++ < last; })) << last;
    }
}
