// SPDX-License-Identifier: MIT
#pragma once

#include "helpbook/HelpBook.h"

#include <string>
#include <string_view>
#include <vector>

// A page that a search found.
struct HelpHit {
    std::string Title;
    std::string Page;

    bool operator==(const HelpHit&) const = default;
};

// The terms that a person searches for: words between blanks, without the punctuation around them, and
// phrases in quotes, unchanged but with single blanks. A phrase without its closing quote ends with the text.
std::vector<std::string> HelpTerms(std::string_view words);

// The pages that hold all of these terms in their title or their text. A term may be part of a longer word;
// case makes no difference in any language. Pages with a term in the title come first; both groups are in the
// order of the contents. No terms find nothing. Reads every page.
std::vector<HelpHit> SearchHelp(const HelpBook& book, const std::vector<std::string>& terms);
