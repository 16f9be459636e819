// SPDX-License-Identifier: MIT
#include "rows/TextSort.h"

#include "base/CaseFolding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

namespace {

std::vector<std::uint32_t> Sorted(const std::vector<std::string>& texts, SortDirection direction) {
    const std::vector<std::string_view> views(texts.begin(), texts.end());
    const TextList source(views);
    const SortHook noHook;
    SortProgress progress(noHook);
    TextSort sort(source, texts.size(), direction, progress);
    for (std::uint32_t i = 0; i < texts.size(); ++i)
        sort.Add(i);
    EXPECT_TRUE(sort.Sort(100));
    sort.ReleaseScratch(); // not the half that has the order
    std::vector<std::uint32_t> order;
    for (std::size_t i = 0; i < sort.Count(); ++i)
        order.push_back(sort[i]);
    return order;
}

// Compares with a plain sort in both directions.
void ExpectPlainOrder(const std::vector<std::string>& texts) {
    std::vector<std::string> folded;
    for (const std::string& text : texts)
        folded.push_back(FoldCase(text));
    for (const SortDirection direction : {SortDirection::Ascending, SortDirection::Descending}) {
        std::vector<std::uint32_t> expected(texts.size());
        std::iota(expected.begin(), expected.end(), 0U);
        std::stable_sort(expected.begin(), expected.end(), [&](std::uint32_t a, std::uint32_t b) {
            return direction == SortDirection::Descending ? folded[b] < folded[a] : folded[a] < folded[b];
        });
        EXPECT_EQ(Sorted(texts, direction), expected)
            << (direction == SortDirection::Descending ? "descending" : "ascending");
    }
}

std::vector<std::string> Generate(std::size_t count, auto text) {
    std::vector<std::string> texts;
    std::mt19937 random(1);
    for (std::size_t i = 0; i < count; ++i)
        texts.push_back(text(random));
    return texts;
}

} // namespace

TEST(TextSort, TextsThatBeginAlike) {
    for (const std::size_t common : {0U, 6U, 7U, 8U, 13U, 14U, 100U, 4090U, 5000U})
        ExpectPlainOrder(Generate(500, [&](std::mt19937& random) {
            std::string text(common, random() % 2 == 0 ? 'x' : 'X');
            return text + std::to_string(random() % 1000);
        }));
}

TEST(TextSort, TextsOfOneLetterAndDifferentLengths) {
    ExpectPlainOrder(Generate(2000, [](std::mt19937& random) {
        return std::string(random() % 300, random() % 2 == 0 ? 'a' : 'A');
    }));
    ExpectPlainOrder(Generate(300, [](std::mt19937& random) { return std::string(random() % 9000, 'a'); }));
}

TEST(TextSort, ATextThatAnotherOneBeginsWithComesFirstAlsoBeforeZeroBytes) {
    ExpectPlainOrder(Generate(3000, [](std::mt19937& random) {
        std::string text(random() % 20, 'a');
        return text + std::string(random() % 4, '\0') + (random() % 4 == 0 ? "a" : "");
    }));
}

TEST(TextSort, LettersThatFoldToOtherLengths) {
    const std::vector<std::string> pieces{"ß",   "ss", "ẞ", "İ",    "i\u0307", "\u212A", "k", "ﬃ",
                                          "ffi", "ä",  "Ä", "\xC3", "\x80",    "軸",     "Ж", "ж"};
    for (const std::size_t mostPieces : {2U, 8U, 30U})
        ExpectPlainOrder(Generate(3000, [&](std::mt19937& random) {
            std::string text;
            for (std::size_t i = random() % mostPieces; i > 0; --i)
                text += pieces[random() % (random() % 8 == 0 ? pieces.size() : 3)];
            return text;
        }));
}

TEST(TextSort, AGuessOfWhatIsCommonMayBeWrong) {
    // All but one begin alike, so that most guesses from some of the texts go too far.
    for (const std::size_t odd : {0U, 1U, 517U, 999U}) {
        std::vector<std::string> texts =
            Generate(1000, [](std::mt19937& random) { return "Programm P" + std::to_string(random() % 50); });
        texts[odd] = "Programm";
        ExpectPlainOrder(texts);
        texts[odd] = "";
        ExpectPlainOrder(texts);
    }
}

TEST(TextSort, ManyTexts) {
    // Enough for the sort of many keys at once, and for runs of each size within.
    ExpectPlainOrder(Generate(80000, [](std::mt19937& random) {
        const std::size_t group = random() % 4;
        const std::size_t spread = group == 0 ? 3 : group == 1 ? 200 : group == 2 ? 5000 : 1000000;
        return "Satz in Gruppe " + std::to_string(group) + ", Teil " + std::to_string(random() % spread);
    }));
}

TEST(TextSort, RanksAreSharedByTextsThatDifferInCase) {
    const SortHook noHook;
    SortProgress progress(noHook);
    const std::vector<std::string_view> texts{"b", "A", "", "B", "a", "Straße", "STRASSE", ""};
    EXPECT_EQ(RanksOf(texts, 100, progress), (std::vector<std::uint32_t>{2, 1, 0, 2, 1, 3, 3, 0}));
    EXPECT_TRUE(RanksOf({}, 100, progress).empty());
}
