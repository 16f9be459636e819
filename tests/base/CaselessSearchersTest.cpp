// SPDX-License-Identifier: MIT
#include "base/CaselessSearchers.h"

#include "base/UnicodeCase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

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

// Characters in a row, each as it stands and without its case.
struct RandomText {
    RandomText(std::mt19937& random, std::size_t characters) {
        for (std::size_t i = 0; i < characters; ++i) {
            const std::string_view piece = Pieces[random() % Pieces.size()];
            Begins.push_back(Text.size());
            Text += piece;
            Lower.push_back(UnicodeLower(piece));
        }
        Begins.push_back(Text.size());
    }

    bool Holds(std::size_t character, const std::vector<std::string>& lower) const {
        return std::equal(lower.begin(), lower.end(), Lower.begin() + static_cast<std::ptrdiff_t>(character));
    }

    std::string Text;
    std::vector<std::size_t> Begins; // of each character, and the text's end
    std::vector<std::string> Lower;
};

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
        const RandomText in(random, random() % 80);
        const RandomText wanted(random, 1 + random() % 4);
        const std::string lower = UnicodeLower(wanted.Text);
        const std::vector<TextSearcher> searchers = CaselessSearchers(lower);
        for (std::size_t i = 0; i + wanted.Lower.size() <= in.Lower.size(); ++i) {
            if (!in.Holds(i, wanted.Lower))
                continue;
            ++occurrences;
            const std::size_t begin = in.Begins[i];
            const std::size_t end = in.Begins[i + wanted.Lower.size()];
            EXPECT_EQ(UnicodeLower(std::string_view(in.Text).substr(begin, end - begin)), lower);
            EXPECT_TRUE(SomeFindsWithin(in.Text, searchers, begin, end)) << in.Text << " | " << lower;
        }
    }
    EXPECT_GT(occurrences, 1000);
}
