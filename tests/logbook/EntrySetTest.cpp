// SPDX-License-Identifier: MIT
#include "logbook/EntrySet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

TEST(EntrySet, IsEmptyAtFirst) {
    const EntrySet none;
    EXPECT_EQ(none.End(), 0U);
    EXPECT_EQ(none.Count(0, 0), 0U);
    EXPECT_EQ(none.FirstFrom(0), std::nullopt);
    EXPECT_EQ(none.LastBefore(0), std::nullopt);
    const EntrySet set(130);
    EXPECT_EQ(set.Count(0, 130), 0U);
    EXPECT_EQ(set.FirstFrom(0), std::nullopt);
    EXPECT_EQ(set.LastBefore(130), std::nullopt);
    EXPECT_EQ(set.Numbers(), std::vector<EntryNumber>());
}

TEST(EntrySet, ReachesTheEndsOfItsWords) {
    EntrySet set(192);
    for (const EntryNumber entry : {0U, 63U, 64U, 127U, 191U})
        set.Add(entry);
    EXPECT_EQ(set.Numbers(), (std::vector<EntryNumber>{0, 63, 64, 127, 191}));
    EXPECT_EQ(set.Count(0, 192), 5U);
    EXPECT_EQ(set.Count(63, 64), 1U);
    EXPECT_EQ(set.Count(64, 64), 0U);
    EXPECT_EQ(set.FirstFrom(128), 191U);
    EXPECT_EQ(set.FirstFrom(192), std::nullopt);
    EXPECT_EQ(set.LastBefore(192), 191U);
    EXPECT_EQ(set.LastBefore(64), 63U);
    EXPECT_EQ(set.LastBefore(0), std::nullopt);
    set.Remove(191);
    EXPECT_FALSE(set.Contains(191));
    EXPECT_TRUE(set.Contains(127));
}

TEST(EntrySet, IsWhatAPlainSetIs) {
    std::mt19937 generator(3);
    const auto random = [&] { return static_cast<EntryNumber>(generator()); };
    for (int round = 0; round < 200; ++round) {
        const EntryNumber end = 1 + random() % 300;
        EntrySet set(end);
        EntrySet others(end);
        std::set<EntryNumber> plain;
        for (unsigned i = random() % 40; i-- > 0;) {
            const EntryNumber entry = random() % end;
            (random() % 2 == 0 ? set : others).Add(entry);
            plain.insert(entry);
        }
        set.AddAll(others);
        EXPECT_EQ(set.Numbers(), std::vector<EntryNumber>(plain.begin(), plain.end()));
        for (int question = 0; question < 20; ++question) {
            const EntryNumber from = random() % end;
            const EntryNumber to = from + random() % (end - from + 1);
            const auto first = plain.lower_bound(from);
            EXPECT_EQ(set.Count(from, to),
                      static_cast<std::size_t>(std::distance(first, plain.lower_bound(to))));
            EXPECT_EQ(set.FirstFrom(from), first == plain.end() ? std::nullopt : std::optional(*first));
            EXPECT_EQ(set.LastBefore(from),
                      first == plain.begin() ? std::nullopt : std::optional(*std::prev(first)));
        }
    }
}
