// SPDX-License-Identifier: MIT
#pragma once

#include "helpbook/ChmFile.h"
#include "helpbook/HelpContents.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A help file that has been read.
struct HelpBook {
    std::string Title;
    std::string FirstPage; // the page to show first; it exists
    std::vector<HelpTopic> Contents;
    HelpMembers Members;
};

// Reads a help file with the program `reader`, see ReadChmFile. Nothing when it is missing, damaged, or
// without contents or pages.
std::optional<HelpBook> OpenHelpBook(const std::filesystem::path& file, const std::filesystem::path& reader);

// The same for members that have been read.
std::optional<HelpBook> MakeHelpBook(HelpMembers members);

// The bytes of a member; nothing when it is missing or could not be read.
std::optional<std::string_view> MemberOf(const HelpBook& book, std::string_view path);

// The paths of all pages, each once: first in the order of the contents, then those that the contents do not
// name.
std::vector<std::string> PagesOf(const HelpBook& book);

// The title of a page in the contents; without one, that of the page itself.
std::string TitleOf(const HelpBook& book, std::string_view page);
