// SPDX-License-Identifier: MIT
#include "rows/SortProgress.h"

#include <gtest/gtest.h>

#include <vector>

TEST(SortProgress, TellsThePartOfTheWay) {
    constexpr std::size_t Call = SortProgress::StepsPerCall;
    std::vector<int> told;
    const SortHook hook = [&](int percent) {
        told.push_back(percent);
        return true;
    };
    SortProgress progress(hook);
    progress.BeginPhase(50, 2 * Call);
    EXPECT_TRUE(progress.Step(Call - 1));
    EXPECT_EQ(told, std::vector<int>{});
    for (const std::size_t steps : {std::size_t{1}, Call, Call, 5 * Call})
        EXPECT_TRUE(progress.Step(steps));
    EXPECT_EQ(told, (std::vector{25, 50, 50, 50})) << "more steps than were announced lead no further";
    // Of the way that is left, which begins where the phase before was to end.
    told.clear();
    progress.BeginPhase(40, 4 * Call);
    {
        const SortProgress::Detour detour(progress);
        progress.Step(Call);
    }
    for (int i = 0; i < 4; ++i)
        progress.Step(Call);
    EXPECT_EQ(told, (std::vector{50, 55, 60, 65, 70}));
    progress.BeginPhase(100, 0);
    progress.Step(Call);
    EXPECT_EQ(told.back(), 100);
}

TEST(SortProgress, StopsForGood) {
    int calls = 0;
    const SortHook hook = [&](int) { return ++calls < 2; };
    SortProgress progress(hook);
    progress.BeginPhase(100, 1);
    EXPECT_TRUE(progress.Step(SortProgress::StepsPerCall));
    EXPECT_FALSE(progress.IsStopped());
    EXPECT_FALSE(progress.Step(SortProgress::StepsPerCall));
    EXPECT_FALSE(progress.Step(1));
    EXPECT_TRUE(progress.IsStopped());
    EXPECT_EQ(calls, 2);
}
