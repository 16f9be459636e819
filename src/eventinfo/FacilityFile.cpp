// SPDX-License-Identifier: MIT
#include "eventinfo/FacilityFile.h"

#include "base/Blanks.h"
#include "eventinfo/LanguageFile.h"
#include "settings/Texts.h"

#include <charconv>
#include <optional>
#include <system_error>

namespace {

std::optional<std::int32_t> ParseNumber(std::string_view text) {
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal)
        text.remove_prefix(2);
    std::int32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number, hexadecimal ? 16 : 10);
    if (error != std::errc() || rest != end || text.starts_with('-'))
        return std::nullopt;
    return number;
}

// The prefix begins the name of a file in the language folder, so it must not lead out of that folder.
bool IsFilePrefix(std::string_view text) {
    return !text.empty() && text.find_first_of("/\\:") == std::string_view::npos;
}

std::optional<FacilityRecord> ParseFacility(std::string_view line) {
    const std::size_t first = line.find(';');
    const std::size_t second = first == std::string_view::npos ? first : line.find(';', first + 1);
    if (second == std::string_view::npos || line.find(';', second + 1) != std::string_view::npos)
        return std::nullopt;
    const std::optional<std::int32_t> number = ParseNumber(Trim(line.substr(0, first)));
    const std::string_view prefix = Trim(line.substr(first + 1, second - first - 1));
    if (!number || !IsFilePrefix(prefix))
        return std::nullopt;
    return FacilityRecord{*number, LanguageFileText(prefix), LanguageFileText(Trim(line.substr(second + 1)))};
}

} // namespace

FacilityFileContent ReadFacilityFile(const std::string& path) {
    using Outcome = FacilityFileContent::Outcome;
    FacilityFileContent content;
    const auto ends = [&](Outcome outcome) {
        content.Result = outcome;
        return content;
    };
    LanguageFile file(path);
    if (!file.Readable())
        return content;
    std::size_t rows = 0;
    std::string_view line;
    for (content.Line = 1; file.ReadLine(line); ++content.Line) {
        if (Trim(line).empty())
            continue;
        std::optional<FacilityRecord> facility = ParseFacility(line);
        if (!facility)
            return ends(Outcome::InvalidLine);
        if (rows == FacilityRowsAtMost)
            return ends(Outcome::TooManyRows);
        content.Table[rows++] = std::move(*facility);
    }
    if (!file.Readable())
        return ends(Outcome::InvalidLine);
    return ends(rows == 0 ? Outcome::NotThere : Outcome::Read);
}

std::string FacilityFileMessage(const FacilityFileMistake& mistake, Language language) {
    using Outcome = FacilityFileContent::Outcome;
    const bool invalid = mistake.Result == Outcome::InvalidLine;
    if (!invalid && mistake.Result != Outcome::TooManyRows)
        return {};
    const TextId text = invalid ? TextId::FacilityFileLine : TextId::FacilityFileTooLong;
    return mistake.Path + ": " + std::string(Text(text, language)) + std::to_string(mistake.Line);
}
