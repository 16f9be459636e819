// SPDX-License-Identifier: MIT
#include "eventinfo/XmlErrorText.h"

#include "eventinfo/EventClass.h"
#include "eventinfo/LanguageFile.h"
#include "eventinfo/ReplaceAll.h"

#include <array>
#include <string_view>
#include <utility>

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 7> Repairs{{
    {"\u00C3\u0178", "ß"},
    {"\u00C3\u00A4", "ä"},
    {"\u00C3\u00BC", "ü"},
    {"\u00C3\u00B6", "ö"},
    {"&gt;", ">"},
    {"&quot;", "'"},
    {"&apos;", "'"},
}};

bool Contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

// The value in double quotes behind `name`, which ends in "="; nothing when the name or the second quote is
// missing.
std::optional<std::string> Attribute(std::string_view line, std::string_view name) {
    const std::size_t place = line.find(name);
    if (place == std::string_view::npos || place + name.size() >= line.size())
        return std::nullopt;
    const std::string_view value = line.substr(place + name.size() + 1);
    const std::size_t end = value.find('"');
    if (end == std::string_view::npos)
        return std::nullopt;
    return LanguageFileText(value.substr(0, end));
}

// The text between the first start tag and the first end tag from `place` on; moves `place` to its end. When
// a tag is missing, or the end comes before the start, the text is empty and `place` stays.
std::string TextBetween(std::string_view text, std::string_view beginTag, std::string_view endTag,
                        std::size_t& place) {
    const std::size_t begin = text.find(beginTag, place);
    const std::size_t end = text.find(endTag, place);
    if (begin == std::string_view::npos || end == std::string_view::npos || end < begin)
        return {};
    place = end;
    const std::size_t first = begin + beginTag.size();
    return std::string(text.substr(first, end - first));
}

} // namespace

std::optional<EventTextRecord> ReadXmlErrorText(const std::string& fileName, std::int64_t number) {
    if (number < 0)
        return std::nullopt;
    LanguageFile file(fileName);
    const std::string key = "value=\"" + std::to_string(number) + "\"";
    std::string_view line;
    do {
        if (!file.ReadLine(line))
            return std::nullopt;
    } while (!Contains(line, "<string id=") || !Contains(line, key));

    EventTextRecord record;
    record.Id = Attribute(line, "id=").value_or("");
    if (const std::optional<std::string> className = Attribute(line, "class="))
        record.Reaction = EventClassText(*className);

    std::string bytes;
    while (file.ReadLine(line) && !Contains(line, "</string>"))
        bytes.append(line);
    if (!file.Readable())
        return std::nullopt;
    std::string text = LanguageFileText(bytes);
    ReplaceAll(text, "&#10;", EventTextBreak);
    FixUpXmlText(text);

    std::size_t place = 0;
    record.Message = TextBetween(text, "<text>", "</text>", place);
    record.Cause = TextBetween(text, "<text1>", "</text1>", place);
    record.Fix = TextBetween(text, "<text2>", "</text2>", place);
    return record;
}

void FixUpXmlText(std::string& text) {
    for (const auto& [from, to] : Repairs)
        ReplaceAll(text, from, to);
}
