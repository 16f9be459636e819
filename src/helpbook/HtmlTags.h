// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// A piece of HTML: a tag, or the text between two tags.
struct HtmlPiece {
    std::string Tag;             // its name in lower case, "/ul" for an end; "" for text
    std::string_view Attributes; // of a tag, as written
    std::string_view Text;       // when it is text, as written
};

// Goes through HTML piece by piece. Accepts any bytes: a "<" without a following ">" is text. Leaves out
// comments and the content of "script" and "style".
class HtmlTags {
  public:
    explicit HtmlTags(std::string_view html) : rest_(html) {}

    // False at the end.
    bool Next(HtmlPiece& piece);

  private:
    bool SkipBehind(std::string_view end);

    std::string_view rest_;
};

// The value of an attribute, its character references replaced; "" when it is missing.
std::string HtmlAttribute(std::string_view attributes, std::string_view name);

// Replaces "&lt;" and its like, "&auml;" and its like for the letters of Western Europe, and numeric
// references by their characters; others stay as they are.
std::string WithoutCharacterReferences(std::string_view text);
