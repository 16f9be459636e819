// SPDX-License-Identifier: MIT
#include "helpbook/HtmlTags.h"

#include <gtest/gtest.h>

namespace {

// The pieces, each in brackets: "[tag|attributes]" or "[text]".
std::string PiecesOf(std::string_view html) {
    std::string pieces;
    HtmlTags tags(html);
    for (HtmlPiece piece; tags.Next(piece);)
        pieces += piece.Tag.empty() ? "[" + std::string(piece.Text) + "]"
                                    : "[" + piece.Tag + "|" + std::string(piece.Attributes) + "]";
    return pieces;
}

} // namespace

TEST(HtmlTags, TagsAndTexts) {
    EXPECT_EQ(PiecesOf("<P>One<BR clear=\"all\">two</P>"), "[p|][One][br| clear=\"all\"][two][/p|]");
}

TEST(HtmlTags, CommentsAndScriptsAreLeftOut) {
    EXPECT_EQ(PiecesOf("a<!-- <b>no</b> -->b"), "[a][b]");
    EXPECT_EQ(PiecesOf("a<script>if (a < b) c();</SCRIPT>b"), "[a][script|][b]");
    EXPECT_EQ(PiecesOf("a<style>p { }</style>b"), "[a][style|][b]");
}

TEST(HtmlTags, UnfinishedPiecesEndWithTheText) {
    EXPECT_EQ(PiecesOf("a<b"), "[a][<b]");
    EXPECT_EQ(PiecesOf("a<!-- b"), "[a]");
    EXPECT_EQ(PiecesOf("a<script>b"), "[a][script|]");
    EXPECT_EQ(PiecesOf("<"), "[<]");
    EXPECT_EQ(PiecesOf("<>"), "[!|]");
    EXPECT_EQ(PiecesOf(""), "");
}

TEST(HtmlTags, Attributes) {
    const std::string_view attributes = R"( name="Local" VALUE = 'a b' bare empty="" n=5)";
    EXPECT_EQ(HtmlAttribute(attributes, "name"), "Local");
    EXPECT_EQ(HtmlAttribute(attributes, "value"), "a b");
    EXPECT_EQ(HtmlAttribute(attributes, "n"), "5");
    EXPECT_EQ(HtmlAttribute(attributes, "bare"), "");
    EXPECT_EQ(HtmlAttribute(attributes, "empty"), "");
    EXPECT_EQ(HtmlAttribute(attributes, "missing"), "");
    EXPECT_EQ(HtmlAttribute("= \"x", "a"), "");
    EXPECT_EQ(HtmlAttribute("a=\"unfinished", "a"), "unfinished");
}

TEST(HtmlTags, CharacterReferences) {
    EXPECT_EQ(WithoutCharacterReferences("a &lt;b&gt; &amp; &quot;c&quot;"), "a <b> & \"c\"");
    EXPECT_EQ(WithoutCharacterReferences("&Uuml;ber &#246; &#x20AC; &#x1F600;"), "Über ö € 😀");
    EXPECT_EQ(WithoutCharacterReferences("a & b &unknown; &#0; &#xD800; &#1114112; &#x; &#12a; &"),
              "a & b &unknown; &#0; &#xD800; &#1114112; &#x; &#12a; &");
}
