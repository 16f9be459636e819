// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// The texts of help files as UTF-8: text that is valid UTF-8 stays as it is, any other is taken for
// Windows-1252, which the contents of a help file are written in.
std::string HelpTextAsUtf8(std::string_view bytes);

// What a person reads of a page.
struct HtmlText {
    std::string Title; // of the page's head
    std::string Text;  // without tags; blanks and line ends in a row are one blank
};

HtmlText ReadHtmlText(std::string_view html);
