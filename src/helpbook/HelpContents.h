// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

// A line of a help file's contents. A line without a page only heads others.
struct HelpTopic {
    std::string Title;
    std::string Page; // its path in the help file, "" = none; may end in "#" and a place on the page
    std::vector<HelpTopic> Topics;

    bool operator==(const HelpTopic&) const = default;
};

// Reads the contents, nested lists of "sitemap" objects, in UTF-8. Ignores anything else; a list without an
// end ends with the text. Leaves out topics without a title, with all below them. Lists nested deeper than 32
// belong to the level above.
std::vector<HelpTopic> ReadHelpContents(std::string_view html);
