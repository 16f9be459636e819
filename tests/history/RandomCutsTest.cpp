// SPDX-License-Identifier: MIT
// Exports cut at random bytes out of one logbook come back as that logbook, byte for byte, or are refused.
// They never give another one.
#include "history/Stitches.h"
#include "tools/LogbookWriter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

constexpr int Cuts = 250; // a generation

class RandomCuts : public testing::TestWithParam<Generation> {
  protected:
    using Random = std::mt19937_64;

    static std::size_t Below(Random& random, std::size_t bound) {
        return static_cast<std::size_t>(random() % bound);
    }

    std::string Text(std::uint64_t seed) const {
        return LogbookText({.generation = GetParam(), .entries = 0, .bytes = 30'000, .seed = seed});
    }

    // Where the lines behind the heading begin.
    static std::size_t Begin(const std::string& text, Generation generation) {
        return generation == Generation::Classic ? 0 : text.find('\n') + 1;
    }

    // The bytes of a logbook from one place to another, as an export has them: the heading stands before
    // them. A control of the separated generation may write the separator line in force there, or none.
    std::string Export(const std::string& text, std::size_t begin, std::size_t end,
                       bool withSeparator) const {
        const std::size_t lines = Begin(text, GetParam());
        if (begin <= lines)
            return text.substr(0, end);
        std::string heading;
        if (GetParam() == Generation::Operation)
            heading = text.substr(0, lines);
        if (GetParam() == Generation::Separated && withSeparator) {
            // The one that is in force at the line that was cut.
            const std::size_t line = text.rfind('\n', begin - 1) + 1;
            const std::size_t separator = line == 0 ? 0 : text.rfind("\n___", line - 1) + 1;
            heading = text.substr(separator, text.find('\n', separator) + 1 - separator);
        }
        return heading + text.substr(begin, end - begin);
    }

    // Lines of a random piece are written many times, with their stamps.
    static std::string WithRuns(const std::string& text, Random& random) {
        std::string runs;
        std::size_t place = 0;
        while (place < text.size()) {
            std::size_t end = place;
            const std::size_t lines = 1 + Below(random, 3);
            for (std::size_t i = 0; i < lines && end < text.size(); ++i)
                end = text.find('\n', end) + 1;
            const std::size_t times = place == 0 || Below(random, 30) != 0 ? 1 : 2 + Below(random, 40);
            for (std::size_t i = 0; i < times; ++i)
                runs += text.substr(place, end - place);
            place = end;
        }
        return runs;
    }

    // Whether two exports of it, in a random order, give the text from `begin` on. Counts those that are
    // restored.
    void Check(const std::string& text, Random& random, int& restored, std::uint64_t seed) {
        const std::size_t size = text.size();
        const bool isWhole = Below(random, 3) == 0;
        const std::size_t begin = isWhole ? 0 : Below(random, size / 3);
        const std::size_t newerBegin = begin + 1 + Below(random, size / 2);
        // Mostly they overlap, by any number of lines; sometimes there is a hole.
        const std::size_t olderEnd =
            std::min(size, std::max(begin + 1, newerBegin + Below(random, size / 4)) - Below(random, 500));
        const std::size_t newerEnd = std::min(size, olderEnd + Below(random, size / 3));
        if (olderEnd <= begin || newerEnd <= newerBegin)
            return;
        const bool withSeparator = Below(random, 4) != 0;
        std::vector<std::string> exports{Export(text, begin, olderEnd, withSeparator),
                                         Export(text, newerBegin, newerEnd, withSeparator)};
        const std::string expected = Export(text, begin, newerEnd, withSeparator);
        if (Below(random, 2) != 0)
            std::swap(exports[0], exports[1]);
        const std::optional<std::string> log = Stitches(exports).Log();
        restored += log ? 1 : 0;
        EXPECT_TRUE(!log || *log == expected)
            << "seed " << seed << ": " << begin << " to " << olderEnd << ", " << newerBegin << " to "
            << newerEnd << (withSeparator ? " with its separator" : "");
    }
};

TEST_P(RandomCuts, TwoExportsAreRestoredOrRefused) {
    int restored = 0;
    for (std::uint64_t seed = 1; seed <= Cuts; ++seed) {
        Random random(seed);
        Check(Text(seed), random, restored, seed);
    }
    EXPECT_GT(restored, Cuts / 2);
    EXPECT_LT(restored, Cuts);
}

TEST_P(RandomCuts, RunsOfEqualLinesAreRestoredOrRefused) {
    int restored = 0;
    for (std::uint64_t seed = 1; seed <= Cuts; ++seed) {
        Random random(seed);
        Check(WithRuns(Text(seed), random), random, restored, seed);
    }
    EXPECT_GT(restored, Cuts / 3);
    EXPECT_LT(restored, Cuts);
}

// Nothing but a few different lines of one second, over and over: no place can be seen.
TEST_P(RandomCuts, NothingButEqualLinesIsNeverRestoredWrongly) {
    int restored = 0;
    for (std::uint64_t seed = 1; seed <= Cuts; ++seed) {
        Random random(seed);
        const std::string text = Text(seed);
        const std::size_t begin = Begin(text, GetParam());
        const std::size_t line = text.find('\n', begin) + 1;
        std::string equal = text.substr(0, begin);
        for (int i = 0; i < 200; ++i)
            equal += text.substr(begin, line - begin);
        equal += text.substr(line);
        Check(equal, random, restored, seed);
    }
    EXPECT_LT(restored, Cuts);
    EXPECT_GT(restored, Cuts / 5);
}

TEST_P(RandomCuts, ManyExportsInAnyOrderAreRestoredOrRefused) {
    int restored = 0;
    for (std::uint64_t seed = 1; seed <= Cuts; ++seed) {
        Random random(seed);
        const std::string text = Text(seed);
        const bool withSeparator = Below(random, 4) != 0;
        std::vector<std::string> exports;
        const std::size_t begin = Below(random, 3000);
        std::size_t end = begin + 3000 + Below(random, 6000);
        exports.push_back(Export(text, begin, end, withSeparator));
        for (std::size_t count = 2 + Below(random, 3), i = 0; i < count; ++i) {
            const std::size_t next = end - 200 - Below(random, 2500);
            end = std::min(text.size(), end + 1000 + Below(random, 6000));
            exports.push_back(Export(text, next, end, withSeparator));
            if (Below(random, 3) == 0)
                exports.push_back(exports[Below(random, exports.size())]);
            if (Below(random, 3) == 0)
                exports.push_back(Export(text, next + 300, end - 300, withSeparator));
        }
        std::shuffle(exports.begin(), exports.end(), random);
        const std::optional<std::string> log = Stitches(exports).Log();
        restored += log ? 1 : 0;
        EXPECT_TRUE(!log || *log == Export(text, begin, end, withSeparator)) << "seed " << seed;
    }
    EXPECT_GT(restored, Cuts / 2);
}

INSTANTIATE_TEST_SUITE_P(Generations, RandomCuts,
                         testing::Values(Generation::Classic, Generation::Separated, Generation::Operation),
                         [](const testing::TestParamInfo<Generation>& generation) {
                             return generation.param == Generation::Classic     ? "Classic"
                                    : generation.param == Generation::Separated ? "Separated"
                                                                                : "Operation";
                         });

} // namespace
