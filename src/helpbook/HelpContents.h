// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

// A line of a help file's contents. One without a page only heads others.
struct HelpTopic {
    std::string Title;
    std::string Page; // its path in the help file, "" = none; may end in "#" and a place on the page
    std::vector<HelpTopic> Topics;

    bool operator==(const HelpTopic&) const = default;
};

// Reads the contents, nested lists of "sitemap" objects, in UTF-8. What is no such object is passed over; a
// list that is not ended ends with the text. Topics without a title are left out with all below them. Lists
// nested deeper than 32 belong to the level above.
std::vector<HelpTopic> ReadHelpContents(std::string_view html);
