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

// The pages that hold all of the words, which blanks separate, in their title or their text. A word may be
// part of a longer one; upper and lower case are the same in all languages. First come the pages with a word
// in the title, both groups in the order of the contents. Without a word nothing is found. Reads every page.
std::vector<HelpHit> SearchHelp(const HelpBook& book, std::string_view words);
