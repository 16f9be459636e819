// SPDX-License-Identifier: MIT
#include "filter/FilterText.h"

#include "base/Blanks.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <system_error>

namespace {

constexpr char Separator = '|';
constexpr std::size_t FieldsWithoutActive = 5;
constexpr std::size_t Fields = 6;

// Splits a text into fields. Returns their number, even when there is no room for all of them.
std::size_t Split(std::string_view text, std::array<std::string_view, Fields>& fields) {
    for (std::size_t count = 0;; ++count) {
        const std::size_t end = text.find(Separator);
        if (count < Fields)
            fields[count] = text.substr(0, end);
        if (end == std::string_view::npos)
            return count + 1;
        text.remove_prefix(end + 1);
    }
}

// Reads an optional sign and decimal digits, with blanks around them, into 16 bits.
bool ParseType(std::string_view text, std::int16_t& type) {
    text = Trim(text);
    if (text.starts_with('+') && text.size() > 1 && text[1] != '-')
        text.remove_prefix(1);
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, type);
    return error == std::errc{} && rest == end;
}

bool ParseAction(std::string_view text, std::int16_t& action) {
    if (text == "X")
        action = FilterActions::Exclude;
    else if (text == "I")
        action = FilterActions::Include;
    else if (text == "H")
        action = FilterActions::Highlight;
    else
        return false;
    return true;
}

char ActionLetter(std::int16_t action) {
    return action == FilterActions::Exclude ? 'X' : action == FilterActions::Include ? 'I' : 'H';
}

} // namespace

bool ParseFilter(std::string_view text, FilterDefinition& filter) {
    std::array<std::string_view, Fields> fields;
    const std::size_t count = Split(text, fields);
    if (count < FieldsWithoutActive || count > Fields)
        return false;
    if (!ParseAction(fields[0], filter.Action) || !ParseType(fields[1], filter.FilterType))
        return false;
    filter.StringFilter = fields[2];
    filter.Name = fields[3];
    filter.Emitter = fields[4];
    filter.Active = count == FieldsWithoutActive || fields[5] == "1";
    return true;
}

std::string FormatFilter(const FilterDefinition& filter) {
    std::string text(1, ActionLetter(filter.Action));
    for (const std::string& field : {std::to_string(filter.FilterType), filter.StringFilter, filter.Name,
                                     filter.Emitter, std::string(filter.Active ? "1" : "0")})
        text.append(1, Separator).append(field);
    return text;
}

StringFilter ParseStringFilter(std::string_view text) {
    std::array<std::string_view, Fields> fields;
    Split(text, fields);
    return {std::string(fields[0]), std::string(fields[1])};
}

std::string FormatStringFilter(const StringFilter& filter) {
    return filter.FilterString + Separator + filter.Comment + Separator + "1";
}
