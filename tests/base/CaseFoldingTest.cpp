// SPDX-License-Identifier: MIT
#include "base/CaseFolding.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

// Bytes that are no valid UTF-8: a lonely continuation, a cut sequence, an overlong one, a surrogate.
const std::vector<std::string> InvalidTexts{"\x80",     "a\xC3",        "\xE2\x82",
                                            "\xC0\xAF", "\xED\xA0\x80", "\xFF\xFE"};

const std::vector<std::string> Pieces{"a",        "A",
                                      "Z",        "z",
                                      "[",        "`",
                                      "@",        "{",
                                      "ä",        "Ä",
                                      "ß",        "ẞ",
                                      "ss",       "İ",
                                      "i",        "\u0307",
                                      "\u212A",   "k",
                                      "ſ",        "ﬁ",
                                      "fi",       "Σ",
                                      "ς",        "σ",
                                      "\xC3",     "\x80",
                                      "12345678", "ABCDEFGHIJKLMNOP",
                                      "",         std::string(1, '\0')};

std::string RandomText(std::mt19937& random) {
    std::string text;
    for (std::size_t i = random() % 6; i > 0; --i)
        text += Pieces[random() % Pieces.size()];
    return text;
}

int Sign(int order) { return (order > 0) - (order < 0); }

} // namespace

TEST(CaseFolding, LettersOfAllScriptsLoseTheirCase) {
    EXPECT_EQ(FoldCase(""), "");
    EXPECT_EQ(FoldCase("P6018.NC [@`{ changed"), "p6018.nc [@`{ changed");
    EXPECT_EQ(FoldCase("KÜHLUNG Läuft"), "kühlung läuft");
    EXPECT_EQ(FoldCase("ΣΊΣΥΦΟΣ"), "σίσυφοσ");
    EXPECT_EQ(FoldCase("ДВЕРЬ"), "дверь");
    EXPECT_EQ(FoldCase("軸 X"), "軸 x");
}

TEST(CaseFolding, OneLetterMayFoldToSeveral) {
    EXPECT_EQ(FoldCase("Straße"), "strasse");
    EXPECT_EQ(FoldCase("STRAẞE"), "strasse");
    EXPECT_EQ(FoldCase("İ"), "i\u0307");
    EXPECT_EQ(FoldCase("ﬁ"), "fi");
    EXPECT_EQ(FoldCase("\u212A"), "k") << "the sign for Kelvin";
    EXPECT_EQ(FoldCase("ΐ"), "\u03B9\u0308\u0301");
}

TEST(CaseFolding, TheDotlessIIsALetterOfItsOwn) {
    EXPECT_EQ(FoldCase("ı"), "ı");
    EXPECT_NE(CompareFolded("I", "ı"), 0);
}

TEST(CaseFolding, BytesThatAreNotUtf8Stay) {
    for (const std::string& text : InvalidTexts) {
        EXPECT_EQ(FoldCase(text), text);
        EXPECT_EQ(FoldCase("X" + text + "Ä"), "x" + text + "ä");
        EXPECT_EQ(CompareFolded(text, text), 0);
    }
}

TEST(CaseFolding, ComparesByCodePoint) {
    EXPECT_EQ(CompareFolded("Werkzeug Fehlt", "wERKZEUG fEHLT"), 0);
    EXPECT_EQ(CompareFolded("Maße der Straße", "MASSE DER STRASSE"), 0);
    EXPECT_LT(CompareFolded("", "a"), 0);
    EXPECT_LT(CompareFolded("abc", "ABCD"), 0);
    EXPECT_LT(CompareFolded("z", "ä"), 0);
    EXPECT_LT(CompareFolded("Zeile 9", "zeile_10"), 0);
    EXPECT_LT(CompareFolded("_", "Z"), 0) << "letters are folded to small ones, and _ lies before these";
    EXPECT_LT(CompareFolded("\uFFFD", "\U00010000"), 0);
}

TEST(CaseFolding, AllWaysAgree) {
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        const std::string a = RandomText(random);
        const std::string b = RandomText(random);
        const std::string foldedA = FoldCase(a);
        const std::string foldedB = FoldCase(b);
        ASSERT_EQ(Sign(CompareFolded(a, b)), Sign(foldedA.compare(foldedB))) << a << "\n" << b;

        std::size_t common = 0;
        while (common < foldedA.size() && common < foldedB.size() && foldedA[common] == foldedB[common])
            ++common;
        ASSERT_EQ(CommonFolded(foldedA, b), common) << a << "\n" << b;

        const std::size_t place = random() % (foldedA.size() + 3);
        const std::string rest = place < foldedA.size() ? foldedA.substr(place, 8) : "";
        std::uint64_t bytes = 0;
        for (std::size_t k = 0; k < 8; ++k)
            bytes = bytes << 8U | (k < rest.size() ? static_cast<unsigned char>(rest[k]) : 0U);
        const FoldedEight eight = FoldedEightAt(a, place);
        ASSERT_EQ(eight.Count, rest.size()) << a << " from " << place;
        ASSERT_EQ(eight.Bytes, bytes) << a << " from " << place;
    }
}
