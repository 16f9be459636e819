// SPDX-License-Identifier: MIT
#include "base/VisibleControls.h"

#include <gtest/gtest.h>

TEST(VisibleControls, ControlCharactersAreShown) {
    using namespace std::string_literals;
    EXPECT_EQ(WithVisibleControls("a\x1b[31mb\x7f"), "a\\u001b[31mb\\u007f");
    EXPECT_EQ(WithVisibleControls("\0\x01\x1f\t\r\n"s), "\\u0000\\u0001\\u001f\\u0009\\u000d\\u000a");
    EXPECT_EQ(WithVisibleControls("\u0080x\u009b\u009f"), "\\u0080x\\u009b\\u009f");
}

TEST(VisibleControls, OthersStay) {
    for (const char* text :
         {"", " ~", "\u00A0\u00A1\u00BF", "Kühlung ÀßÿĀ", "€\u2009", "\U0001F600", "\\u001b"})
        EXPECT_EQ(WithVisibleControls(text), text);
    EXPECT_EQ(WithVisibleControls("\t\n\x1b", "\n\t"), "\t\n\\u001b");
}

TEST(VisibleControls, BytesThatAreNoCharacterCountAsTheirNumber) {
    EXPECT_EQ(WithVisibleControls("\x9b"
                                  "2J"),
              "\\u009b2J");
    EXPECT_EQ(WithVisibleControls("K\xFChl\xC2"), "K\xFChl\xC2");
    EXPECT_EQ(WithVisibleControls("\xC3\x1b"), "\xC3\\u001b");
    EXPECT_EQ(WithVisibleControls("\xE2\x9b"), "\xE2\\u009b") << "cut short";
    EXPECT_EQ(WithVisibleControls("\xE0\x80\x9b"), "\xE0\\u0080\\u009b") << "longer than it need be";
    EXPECT_EQ(WithVisibleControls("\xF0\x80\x80\x9b"), "\xF0\\u0080\\u0080\\u009b");
    EXPECT_EQ(WithVisibleControls("\xF4\x90\x80\x9b"), "\xF4\\u0090\\u0080\\u009b") << "beyond the last";
    EXPECT_EQ(WithVisibleControls("\xC0\x9b"), "\xC0\\u009b");
}
