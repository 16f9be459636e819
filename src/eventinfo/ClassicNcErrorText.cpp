// SPDX-License-Identifier: MIT
#include "eventinfo/ClassicNcErrorText.h"

#include "eventinfo/LanguageFile.h"

namespace {

// Both languages, whatever the dialog language: a file may be untranslated.
bool IsCauseHeading(std::string_view line) { return line == "Cause of error:" || line == "Fehlerursache:"; }
bool IsFixHeading(std::string_view line) { return line == "Corrective action:" || line == "Fehlerbehebung:"; }

// Reads the lines of a text up to the line that ends it, which `line` then holds, or to the end of the file.
template <typename EndsText>
std::string ReadParagraph(LanguageFile& file, std::string_view& line, EndsText endsText) {
    file.ReadLine(line);
    std::string bytes(line);
    while (file.ReadLine(line) && !endsText(line))
        bytes.append(EventTextBreak).append(line);
    return LanguageFileText(bytes);
}

} // namespace

std::optional<EventTextRecord> ReadClassicNcErrorText(const std::string& fileName, std::int64_t number) {
    if (number < 0)
        return std::nullopt;
    LanguageFile file(fileName);
    const std::string key = std::to_string(number);
    std::string_view line;
    do {
        if (!file.ReadLine(line))
            return std::nullopt;
    } while (line != key);

    EventTextRecord record;
    file.ReadLine(line);
    record.Message = LanguageFileText(line);
    file.ReadLine(line);
    file.ReadLine(line);
    if (IsCauseHeading(line))
        record.Cause = ReadParagraph(
            file, line, [](std::string_view next) { return next.empty() || IsFixHeading(next); });
    if (IsFixHeading(line))
        record.Fix = ReadParagraph(file, line, [](std::string_view next) { return next.empty(); });
    if (!file.Readable())
        return std::nullopt;
    return record;
}
