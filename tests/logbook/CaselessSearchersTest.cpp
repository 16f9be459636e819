// SPDX-License-Identifier: MIT
#include "logbook/CaselessSearchers.h"

#include "logbook/UnicodeCase.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace {

// True when one of the searchers finds a place from `begin` on that lies before `end`.
bool SomeFindsWithin(std::string_view in, const std::vector<TextSearcher>& searchers, std::size_t begin,
                     std::size_t end) {
    for (const TextSearcher& searcher : searchers)
        if (const std::size_t place = searcher.Find(in, begin); place < end)
            return true;
    return false;
}

constexpr std::array<std::string_view, 14> Pieces{"k", "K",      "\u212A", "i",      "I", "\u0130", "ß",
                                                  "ü", "\u1E9E", "Ü",      "\u212B", "å", "s",      " "};

std::string RandomText(std::mt19937& random, std::size_t pieces) {
    std::string text;
    for (std::size_t i = 0; i < pieces; ++i)
        text += Pieces[random() % Pieces.size()];
    return text;
}

} // namespace

TEST(CaselessSearchers, OneForTheUsualFormsAndOneForEachOddForm) {
    EXPECT_EQ(CaselessSearchers("error").size(), 1U);
    EXPECT_EQ(CaselessSearchers("größe").size(), 2U);
    EXPECT_EQ(CaselessSearchers("kik").size(), 3U);
}

TEST(CaselessSearchers, UsualFormsAreFoundWhereTheyStand) {
    const TextSearcher searcher = CaselessSearchers("größe").front();
    for (const char* form : {"größe", "GRÖßE", "GröSSE GRöße"})
        EXPECT_NE(searcher.Find(form, 0), TextSearcher::NotFound) << form;
    for (const char* other : {"grösse", "größ", "GRÜßE", ""})
        EXPECT_EQ(searcher.Find(other, 0), TextSearcher::NotFound) << other;
}

TEST(CaselessSearchers, EveryOccurrenceHasACandidate) {
    std::mt19937 random(7);
    int occurrences = 0;
    for (int round = 0; round < 4000; ++round) {
        const std::string in = RandomText(random, random() % 80);
        const std::string lower = UnicodeLower(RandomText(random, 1 + random() % 4));
        const std::vector<TextSearcher> searchers = CaselessSearchers(lower);
        for (std::size_t begin = 0; begin < in.size(); ++begin)
            for (std::size_t end = begin + 1; end <= in.size(); ++end)
                if (UnicodeLower(std::string_view(in).substr(begin, end - begin)) == lower) {
                    ++occurrences;
                    EXPECT_TRUE(SomeFindsWithin(in, searchers, begin, end)) << in << " | " << lower;
                }
    }
    EXPECT_GT(occurrences, 1000);
}
