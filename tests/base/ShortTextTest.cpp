// SPDX-License-Identifier: MIT
#include "base/ShortText.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Different characters at neighbouring places.
std::string Text(std::size_t length) {
    std::string text;
    for (std::size_t place = 0; place < length; ++place)
        text += static_cast<char>('a' + place % 26);
    return text;
}

constexpr std::size_t Longest = 40;

} // namespace

TEST(IsSameShort, LooksAtEveryCharacter) {
    for (std::size_t length = 0; length <= Longest; ++length) {
        const std::string text = Text(length);
        EXPECT_TRUE(IsSameShort(text, Text(length))) << length;
        EXPECT_FALSE(IsSameShort(text, Text(length + 1))) << length;
        for (std::size_t place = 0; place < length; ++place) {
            std::string other = text;
            other[place] = '_';
            EXPECT_FALSE(IsSameShort(text, other)) << place << " of " << length;
        }
    }
}

TEST(CopyShort, CopiesEveryCharacterAndNoMore) {
    for (std::size_t length = 0; length <= Longest; ++length) {
        std::string room(Longest + 1, '_');
        EXPECT_EQ(CopyShort(Text(length), room.data()), room.data() + length);
        EXPECT_EQ(room, Text(length) + std::string(room.size() - length, '_')) << length;
    }
}
