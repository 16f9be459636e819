// SPDX-License-Identifier: MIT
#include "filter/FilterFile.h"

#include "filter/FilterText.h"
#include "logbook/AtomicFile.h"
#include "logbook/TextFile.h"
#include "settings/Texts.h"

#include <fstream>

namespace {

constexpr std::string_view Header = "[Filters]";

// A filter's line in the code page; what has no place in a line is lost like a character that the code page
// lacks.
CodePage::Bytes FilterLine(const FilterDefinition& filter, const CodePage& codePage) {
    CodePage::Bytes line = codePage.FromUtf8(FormatFilter(filter));
    for (char& c : line.Text)
        if (c == '\r' || c == '\n') {
            c = '?';
            ++line.Lost;
        }
    return line;
}

} // namespace

std::vector<std::size_t> FiltersThatLose(std::span<const FilterDefinition> filters,
                                         const CodePage& codePage) {
    std::vector<std::size_t> losing;
    for (std::size_t i = 0; i < filters.size(); ++i)
        if (FilterLine(filters[i], codePage).Lost != 0)
            losing.push_back(i);
    return losing;
}

std::error_code ExportFilterFile(const std::string& path, std::span<const FilterDefinition> filters,
                                 const CodePage& codePage) {
    AtomicFile file(path);
    file.Stream() << Header << "\r\n";
    for (const FilterDefinition& filter : filters)
        file.Stream() << FilterLine(filter, codePage).Text << "\r\n";
    return file.Commit();
}

FilterFileContent ImportFilterFile(const std::string& path, const CodePage& codePage) {
    using Outcome = FilterFileContent::Outcome;
    FilterFileContent content;
    std::ifstream stream;
    std::string line;
    const auto endsWith = [&](std::error_code error) {
        content.Error = error;
        if (error)
            content.Result = Outcome::CannotRead;
        return content;
    };
    if (const std::error_code error = OpenTextFile(path, stream))
        return endsWith(error);
    if (!ReadTextLine(stream, line))
        return endsWith(TextFileError(stream));
    if (line != Header) {
        content.Result = Outcome::NoHeader;
        return content;
    }
    for (content.Line = 2; ReadTextLine(stream, line); ++content.Line) {
        FilterDefinition filter;
        if (!ParseFilter(codePage.ToUtf8(line), filter)) {
            content.Result = Outcome::InvalidLine;
            return content;
        }
        content.Filters.push_back(std::move(filter));
    }
    return endsWith(TextFileError(stream));
}

std::string FilterFileMessage(const std::string& path, const FilterFileContent& content, Language language) {
    using Outcome = FilterFileContent::Outcome;
    const auto text = [&](TextId id) { return std::string(Text(id, language)); };
    switch (content.Result) {
    case Outcome::Read:
        break;
    case Outcome::CannotRead:
        return text(TextId::FilterFileUnreadableBefore) + path + text(TextId::FilterFileUnreadableAfter) +
               " (" + content.Error.message() + ")";
    case Outcome::NoHeader:
        return path + ": " + text(TextId::FilterFileNoFilters);
    case Outcome::InvalidLine:
        return path + ": " + text(TextId::FilterFileLine) + std::to_string(content.Line);
    }
    return {};
}
