// SPDX-License-Identifier: MIT
#include "history/ErrorTexts.h"

#include "eventinfo/iZEKEventInfo.h"
#include "logbook/JoinedLines.h"

ErrorTexts TextsOf(const ErrorRecord& record, const EntryTable& entries,
                   std::span<const std::string> languageFolders) {
    if (record.Form != ErrorKeys::Form::Code)
        return {};
    const std::string data = WithLineBreaks(entries.Data(record.First));
    const auto text = [&](std::int32_t language) {
        std::optional<std::string> found = AutoFillComment(data, {language}, languageFolders).Text;
        if (found)
            std::erase(*found, '\r');
        return found;
    };
    return {text(Language::English), text(Language::German)};
}

std::optional<std::string> FirstLine(const std::optional<std::string>& text) {
    if (!text)
        return std::nullopt;
    std::string line = text->substr(0, text->find('\n'));
    return line.empty() ? std::nullopt : std::optional(std::move(line));
}
