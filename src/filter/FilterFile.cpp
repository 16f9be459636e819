// SPDX-License-Identifier: MIT
#include "filter/FilterFile.h"

#include "base/AtomicFile.h"
#include "base/FileProblem.h"
#include "filter/FilterText.h"
#include "settings/ReasonText.h"
#include "settings/Texts.h"

#include <new>

namespace {

constexpr std::string_view Header = "[Filters]";

// A filter's line in the code page. Characters that a line cannot hold are lost like those that the code page
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

// Counts the filters of a file against the bounds.
class FilterRoom {
  public:
    bool Take(const FilterDefinition& filter) {
        const bool hasText = filter.FilterType != FilterTypes::Numbers && !filter.StringFilter.empty();
        return filters_++ < FilterFileBounds::Filters &&
               (!hasText || withText_++ < FilterFileBounds::FiltersWithText);
    }

  private:
    std::size_t filters_ = 0;
    std::size_t withText_ = 0;
};

std::error_code ReadFilters(TextFile& file, const CodePage& codePage, FilterFileContent& content) {
    using Outcome = FilterFileContent::Outcome;
    std::string_view line;
    if (!file.ReadLine(line))
        return file.Error();
    if (line != Header) {
        content.Result = Outcome::NoHeader;
        return {};
    }
    FilterRoom room;
    for (content.Line = 2; file.ReadLine(line); ++content.Line) {
        FilterDefinition filter;
        if (!ParseFilter(codePage.ToUtf8(line), filter)) {
            content.Result = Outcome::InvalidLine;
            return {};
        }
        if (!room.Take(filter))
            return FileProblem::TooManyLines;
        content.Filters.push_back(std::move(filter));
    }
    return file.Error();
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
    TextFileRoom room(FilterFileBounds::Bytes);
    FilterRoom filterRoom;
    std::error_code error = room.Take(Header);
    file.Stream() << Header << "\r\n";
    for (const FilterDefinition& filter : filters) {
        const std::string line = FilterLine(filter, codePage).Text;
        if (error = room.Take(line); error)
            return error;
        if (!filterRoom.Take(filter))
            return FileProblem::TooManyLines;
        file.Stream() << line << "\r\n";
    }
    return file.Commit();
}

FilterFileContent ImportFilterFile(const std::string& path, const CodePage& codePage) {
    FilterFileContent content;
    TextFile file(path, FilterFileBounds::Bytes);
    try {
        content.Error = ReadFilters(file, codePage, content);
    } catch (const std::bad_alloc&) {
        content.Filters = {};
        content.Error = std::make_error_code(std::errc::not_enough_memory);
    }
    if (content.Error)
        content.Result = FilterFileContent::Outcome::CannotRead;
    return content;
}

std::string FilterFileMessage(const std::string& path, const FilterFileContent& content, Language language) {
    using Outcome = FilterFileContent::Outcome;
    const auto text = [&](TextId id) { return std::string(Text(id, language)); };
    switch (content.Result) {
    case Outcome::Read:
        break;
    case Outcome::CannotRead:
        return text(TextId::FilterFileUnreadableBefore) + path + text(TextId::FilterFileUnreadableAfter) +
               " (" + ReasonText(content.Error, language) + ")";
    case Outcome::NoHeader:
        return path + ": " + text(TextId::FilterFileNoFilters);
    case Outcome::InvalidLine:
        return path + ": " + text(TextId::FilterFileLine) + std::to_string(content.Line);
    }
    return {};
}
