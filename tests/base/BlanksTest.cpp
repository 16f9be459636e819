// SPDX-License-Identifier: MIT
#include "base/Blanks.h"

#include <gtest/gtest.h>

#include <string>

TEST(CharacterBits, TellEachPlaceInTextsOfEveryLength) {
    for (std::size_t length = 0; length <= MostCharacterBits; ++length) {
        std::string text;
        std::uint64_t expected = 0;
        for (std::size_t place = 0; place < length; ++place) {
            const bool blank = place * place % 7 == 2 || place + 1 == length;
            text += blank ? ' ' : static_cast<char>('\x1F' + place % 3 * 2);
            expected |= std::uint64_t{blank ? 1U : 0U} << place;
        }
        EXPECT_EQ(CharacterBits(text, ' '), expected) << length;
        EXPECT_EQ(CharacterBits(text, 'x'), 0U) << length;
    }
}

TEST(TrimPadded, GivesWhatTrimGives) {
    for (std::size_t length = 0; length <= MostCharacterBits + 6; ++length)
        for (std::size_t before = 0; before <= length; before += 5)
            for (std::size_t behind = 0; before + behind <= length; behind += 3) {
                std::string text(length, ' ');
                for (std::size_t place = before; place + behind < length; ++place)
                    text[place] = place % 4 == 1 ? ' ' : 'x';
                EXPECT_EQ(TrimPadded(text), Trim(text)) << "[" << text << "]";
            }
}
