// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "base/TextFile.h"
#include "filter/FilterDefinition.h"

#include <cstddef>
#include <span>
#include <string>
#include <system_error>
#include <vector>

// Filter files (*.fil): the line "[Filters]", then one filter a line, in the code page of the control's
// files.

// The most that a filter file may hold; a larger one is neither read nor written. A list that names every
// other one of ten million entries has 45 MB and fewer than 50,000 filters. Each filter with a text makes
// every run search the data of all entries.
namespace FilterFileBounds {
inline constexpr TextFileBounds Bytes{.File = 64U << 20U, .Line = 16U << 20U};
inline constexpr std::size_t Filters = 100'000;
inline constexpr std::size_t FiltersWithText = 10'000;
} // namespace FilterFileBounds

// The places in the list of the filters with characters that the code page lacks; an export writes "?" for
// each. The caller must warn the user before it replaces the file.
std::vector<std::size_t> FiltersThatLose(std::span<const FilterDefinition> filters, const CodePage& codePage);

// Writes the file; replaces an existing one when the new one is whole.
std::error_code ExportFilterFile(const std::string& path, std::span<const FilterDefinition> filters,
                                 const CodePage& codePage);

struct FilterFileContent {
    enum class Outcome {
        Read,
        CannotRead,  // Error says why
        NoHeader,    // the first line is not exactly the header
        InvalidLine, // Line gives its number; Filters holds those above it
    };

    Outcome Result = Outcome::Read;
    std::error_code Error;
    std::size_t Line = 0; // from 1
    std::vector<FilterDefinition> Filters;
};

// Reads the file; lines may end with CR LF or LF. An empty file gives an empty list. CannotRead also when
// there is no memory for the filters.
FilterFileContent ImportFilterFile(const std::string& path, const CodePage& codePage);

// The message for a file that was not Read, in the words of the filter dialog where it has any.
std::string FilterFileMessage(const std::string& path, const FilterFileContent& content, Language language);
