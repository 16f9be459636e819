// SPDX-License-Identifier: MIT
#include "base/TextSearcher.h"

#include <gtest/gtest.h>

#include <random>

TEST(TextSearcher, AgreesWithThePlainSearch) {
    std::mt19937 random(3);
    for (int round = 0; round < 3000; ++round) {
        std::string in(random() % 100, '\0');
        for (char& c : in)
            c = static_cast<char>('a' + random() % 3);
        std::string text(random() % 5, '\0');
        for (char& c : text)
            c = static_cast<char>('a' + random() % 3);
        const TextSearcher searcher(text);
        for (std::size_t from = 0; from <= in.size() + 1; from += 1 + random() % 7)
            EXPECT_EQ(searcher.Find(in, from), in.find(text, from)) << in << " " << text << " " << from;
    }
}

TEST(TextSearcher, FindsTextsAtEveryPlaceAndOfEveryLength) {
    for (std::size_t length = 1; length < 40; ++length)
        for (std::size_t place = 0; place < 60; ++place) {
            std::string in(place + length + 5, '.');
            const std::string text = std::string(length - 1, 'x') + "y";
            in.replace(place, length, text);
            EXPECT_EQ(TextSearcher(text).Find(in, 0), place);
            EXPECT_EQ(TextSearcher(text).Find(in, place + 1), TextSearcher::NotFound);
        }
}

TEST(TextSearcher, IgnoredBitsMayDiffer) {
    std::mt19937 random(5);
    constexpr std::string_view Letters = "abAB.";
    const auto randomText = [&](std::size_t length) {
        std::string text(length, '\0');
        for (char& c : text)
            c = Letters[random() % Letters.size()];
        return text;
    };
    const auto lower = [](std::string text) {
        for (char& c : text)
            c = static_cast<char>(c | 0x20);
        return text;
    };
    for (int round = 0; round < 3000; ++round) {
        const std::string in = randomText(random() % 100);
        const std::string text = randomText(random() % 6);
        const TextSearcher searcher(text, std::string(text.size(), '\x20'));
        for (std::size_t from = 0; from <= in.size() + 1; from += 1 + random() % 7)
            EXPECT_EQ(searcher.Find(in, from), lower(in).find(lower(text), from)) << in << " " << text;
    }
}
