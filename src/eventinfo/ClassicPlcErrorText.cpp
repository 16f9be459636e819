// SPDX-License-Identifier: MIT
#include "eventinfo/ClassicPlcErrorText.h"

#include "base/Blanks.h"
#include "eventinfo/LanguageFile.h"
#include "eventinfo/Numbers.h"
#include "logbook/modUtil.h"

namespace {

constexpr std::size_t DigitCount = 3;
constexpr std::int64_t MessageColumn = 5; // behind the digits and a separator

bool BeginsWithNumber(std::string_view line, std::int64_t number) {
    const std::string_view digits = Trim(line.substr(0, DigitCount));
    return IsDecimal(digits) && ReadDecimal(digits) == number;
}

bool BeginsBlock(std::string_view line) { return IsDecimal(line.substr(0, FindBlank(line))); }

// The next line that has a blank.
bool ReadLineWithBlank(LanguageFile& file, std::string_view& line) {
    while (file.ReadLine(line))
        if (FindBlank(line) != line.size())
            return true;
    return false;
}

// The first block of the number; "" when the file has none.
std::string ReadBlock(const std::string& fileName, std::int64_t number) {
    LanguageFile file(fileName);
    std::string_view line;
    do {
        if (!ReadLineWithBlank(file, line))
            return {};
    } while (!BeginsBlock(line) || !BeginsWithNumber(line, number));

    std::string bytes;
    for (bool first = true; ReadLineWithBlank(file, line) && !BeginsBlock(line); first = false)
        bytes.append(first ? "" : EventTextBreak).append(line);
    return file.Readable() ? LanguageFileText(bytes) : std::string();
}

} // namespace

std::optional<EventTextRecord> ReadClassicPlcErrorText(const std::string& folder, std::int64_t number) {
    LanguageFile file(FindInFolder(folder, "error.a"));
    std::string_view line;
    do {
        if (!file.ReadLine(line))
            return std::nullopt;
    } while (!BeginsWithNumber(line, number));

    EventTextRecord record;
    record.Message = LanguageFileText(Mid(line, MessageColumn));
    record.Cause = ReadBlock(FindInFolder(folder, "reason.a"), number);
    record.Fix = ReadBlock(FindInFolder(folder, "fix.a"), number);
    return record;
}
