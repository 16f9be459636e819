// SPDX-License-Identifier: MIT
#include "sources/Comments.h"

#include "logbook/AtomicFile.h"
#include "logbook/modUtil.h"

#include <charconv>
#include <fstream>
#include <optional>
#include <utility>

namespace {

constexpr std::string_view Header = "[Comments]";

// A comment is one line; what would end the line becomes what separates lines in the list.
std::string OnOneLine(std::string_view comment) {
    std::string line;
    for (std::size_t i = 0; i < comment.size(); ++i) {
        if (comment[i] == '\r' && i + 1 < comment.size() && comment[i + 1] == '\n')
            continue;
        if (comment[i] == '\r' || comment[i] == '\n')
            line += " | ";
        else
            line += comment[i];
    }
    return line;
}

CodePage::Bytes BytesOf(std::string_view comment, const CodePage& codePage) {
    return codePage.FromUtf8(OnOneLine(comment));
}

std::string InFileForm(const std::string& text) {
    if (text.find_first_of(",\"") == std::string::npos && text.front() != ' ' && text.back() != ' ')
        return text;
    std::string quoted = "\"";
    for (const char c : text)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted + '"';
}

// The text of a line behind its number; nothing when a quote is not closed.
std::optional<std::string> TextOf(std::string_view field) {
    if (field.empty() || field.front() != '"')
        return std::string(field.substr(0, field.find(',')));
    std::string text;
    for (std::size_t i = 1; i < field.size(); ++i) {
        if (field[i] != '"')
            text += field[i];
        else if (i + 1 < field.size() && field[i + 1] == '"')
            text += field[++i];
        else
            return text;
    }
    return std::nullopt;
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

// The number and the text of a line; nothing when it is damaged.
std::optional<std::pair<EntryNumber, std::string>> FieldsOf(std::string_view line) {
    line = WithoutLeadingBlanks(line);
    EntryNumber number = 0;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
    if (error != std::errc())
        return std::nullopt;
    std::string_view rest = line.substr(static_cast<std::size_t>(end - line.data()));
    if (!rest.empty() && rest.front() != ' ' && rest.front() != ',')
        return std::nullopt;
    rest = WithoutLeadingBlanks(rest);
    // Other writers separate the two by a comma.
    if (rest.starts_with(','))
        rest = WithoutLeadingBlanks(rest.substr(1));
    std::optional<std::string> text = TextOf(rest);
    if (!text)
        return std::nullopt;
    return std::pair(number, std::move(*text));
}

bool ReadFileLine(std::istream& stream, std::string& line) {
    if (!std::getline(stream, line))
        return false;
    if (line.ends_with('\r'))
        line.pop_back();
    return true;
}

} // namespace

std::string CommentsFileText(const EntryTable& entries, const CodePage& codePage) {
    std::string text(Header);
    text += "\r\n";
    for (const auto& [number, comment] : entries.Comments())
        text.append(" ")
            .append(std::to_string(number))
            .append(" ")
            .append(InFileForm(BytesOf(comment, codePage).Text))
            .append("\r\n");
    return text;
}

std::vector<EntryNumber> CommentsThatLose(const EntryTable& entries, const CodePage& codePage) {
    std::vector<EntryNumber> losing;
    for (const auto& [number, comment] : entries.Comments())
        if (BytesOf(comment, codePage).Lost != 0)
            losing.push_back(number);
    return losing;
}

std::error_code SaveComments(const std::string& path, const EntryTable& entries, const CodePage& codePage) {
    AtomicFile file(path);
    file.Stream() << CommentsFileText(entries, codePage);
    return file.Commit();
}

bool CommentLogbook(const std::string& path, EntryTable& entries, const CodePage& codePage) {
    std::error_code ignored;
    if (std::filesystem::is_directory(ToPath(path), ignored))
        return true;
    std::ifstream stream(ToPath(path), std::ios::binary);
    std::string line;
    if (!ReadFileLine(stream, line))
        return true;
    if (line != Header)
        return false;
    while (ReadFileLine(stream, line))
        if (const auto fields = FieldsOf(line); fields && fields->first < entries.Count())
            entries.SetComment(fields->first, codePage.ToUtf8(fields->second));
    return true;
}
