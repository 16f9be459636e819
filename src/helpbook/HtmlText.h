// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// The texts of help files as UTF-8. Valid UTF-8 stays as it is; any other text counts as Windows-1252, the
// code page of a help file's contents.
std::string HelpTextAsUtf8(std::string_view bytes);

// The texts of a page that a person reads.
struct HtmlText {
    std::string Title; // of the page's head
    std::string Text;  // without tags; blanks and line ends in a row are one blank
};

HtmlText ReadHtmlText(std::string_view html);
