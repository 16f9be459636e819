// SPDX-License-Identifier: MIT
#include "eventinfo/CsvErrorText.h"

#include "eventinfo/LanguageFile.h"
#include "eventinfo/Numbers.h"
#include "eventinfo/ReplaceAll.h"

#include <algorithm>

namespace {

// Cuts the next field off the line; "" when the line has no more.
std::string_view TakeField(std::string_view& line) {
    const std::size_t end = line.find(';');
    const std::string_view field = line.substr(0, end);
    line.remove_prefix(std::min(field.size() + 1, line.size()));
    return field;
}

std::string TakeText(std::string_view& line) {
    std::string text = LanguageFileText(TakeField(line));
    std::erase(text, '"');
    return text;
}

std::string TakeLines(std::string_view& line) {
    std::string text = TakeText(line);
    ReplaceAll(text, "|", EventTextBreak);
    return text;
}

} // namespace

std::optional<EventTextRecord> ReadCsvErrorText(const std::string& fileName, std::int64_t number) {
    if (number < 0)
        return std::nullopt;
    LanguageFile file(fileName);
    std::string_view line;
    file.ReadLine(line);
    while (file.ReadLine(line))
        if (ReadDecimal(TakeField(line)) == number) {
            EventTextRecord record;
            record.Message = TakeText(line);
            record.Cause = TakeLines(line);
            record.Fix = TakeLines(line);
            return record;
        }
    return std::nullopt;
}
