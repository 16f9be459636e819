// SPDX-License-Identifier: MIT
#include "comments/Comments.h"

#include "base/AtomicFile.h"
#include "base/Blanks.h"
#include "base/FileProblem.h"
#include "logbook/EventLines.h"
#include "settings/ReasonText.h"
#include "settings/Texts.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <new>
#include <optional>
#include <string_view>

namespace {

constexpr char Quote = '"';
constexpr char Comma = ',';

// A line of the file, its text still in the code page.
struct CommentLine {
    std::int64_t Number = 0;
    std::string Text;
};

void SkipBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(Blank), text.size()));
}

// Cuts the number off the line's start; nothing when there is none. A blank, a comma, a quote or the line's
// end follows a number.
std::optional<std::int64_t> TakeNumber(std::string_view& line) {
    SkipBlanks(line);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
    if (error == std::errc::invalid_argument)
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
        number = std::numeric_limits<std::int64_t>::max();
    line.remove_prefix(static_cast<std::size_t>(end - line.data()));
    constexpr std::string_view Separators = " ,\"";
    const bool ends = line.empty() || Separators.find(line.front()) != std::string_view::npos;
    return ends ? std::optional(number) : std::nullopt;
}

// The text between the quote at the start and its closing quote, or the line's end when that is missing.
std::string Unquoted(std::string_view text) {
    std::string unquoted;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] == Quote) {
            ++i;
            if (i == text.size() || text[i] != Quote)
                break;
        }
        unquoted += text[i];
    }
    return unquoted;
}

std::optional<CommentLine> ParseLine(std::string_view line) {
    const std::optional<std::int64_t> number = TakeNumber(line);
    if (!number)
        return std::nullopt;
    SkipBlanks(line);
    if (line.starts_with(Comma)) {
        line.remove_prefix(1);
        SkipBlanks(line);
    }
    return CommentLine{*number, line.starts_with(Quote) ? Unquoted(line)
                                                        : std::string(line.substr(0, line.find(Comma)))};
}

// A comment has no line breaks: they would end its line.
std::string WithoutLineBreaks(std::string_view text) {
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            continue;
        if (text[i] == '\r' || text[i] == '\n')
            line += LineSeparator;
        else
            line += text[i];
    }
    return line;
}

// A comment as its line holds it.
std::string FormatText(const std::string& comment) {
    std::string text = WithoutLineBreaks(comment);
    if (text.find_first_of("\",") == std::string::npos && !text.starts_with(Blank) && !text.ends_with(Blank))
        return text;
    std::string quoted(1, Quote);
    for (const char c : text)
        quoted.append(c == Quote ? 2 : 1, c);
    return quoted + Quote;
}

using TakeComment = std::function<void(std::int64_t, std::string)>;

// False for a file without the header.
bool ReadComments(TextFile& file, const CodePage& codePage, const TakeComment& take) {
    std::string_view line;
    if (!file.ReadLine(line))
        return true;
    if (line != CommentsFileHeader)
        return false;
    while (file.ReadLine(line))
        if (const std::optional<CommentLine> comment = ParseLine(line))
            take(comment->Number, codePage.ToUtf8(comment->Text));
    return true;
}

} // namespace

CommentsFileResult ReadCommentsFile(const std::string& path, const CodePage& codePage,
                                    const TakeComment& take) {
    using Outcome = CommentsFileResult::Outcome;
    TextFile file(path, CommentsFileBounds);
    std::error_code error;
    try {
        if (!ReadComments(file, codePage, take))
            return {Outcome::NoHeader, {}};
        error = file.Error();
    } catch (const std::bad_alloc&) {
        error = std::make_error_code(std::errc::not_enough_memory);
    }
    return {error ? Outcome::CannotRead : Outcome::Read, error};
}

CommentsFileResult CommentLogbook(const std::string& path, EntryTable& entries, const CodePage& codePage) {
    return ReadCommentsFile(path, codePage, [&](std::int64_t number, const std::string& comment) {
        if (number >= 0 && number < entries.Count())
            entries.SetComment(static_cast<EntryNumber>(number), comment);
    });
}

std::string CommentsFileMessage(const std::string& path, const CommentsFileResult& result,
                                Language language) {
    using Outcome = CommentsFileResult::Outcome;
    switch (result.Result) {
    case Outcome::Read:
        break;
    case Outcome::CannotRead:
        return std::string(Text(TextId::CommentsFileUnreadable, language)) + " (" + path + ": " +
               ReasonText(result.Error, language) + ")";
    case Outcome::NoHeader:
        return std::string(Text(TextId::CommentsFileNoComments, language));
    }
    return {};
}

std::vector<EntryNumber> CommentsThatLose(const EntryTable& entries, const CodePage& codePage) {
    std::vector<EntryNumber> losing;
    for (const auto& [number, comment] : entries.Comments())
        if (codePage.FromUtf8(comment).Lost != 0)
            losing.push_back(number);
    return losing;
}

std::string CommentAsStored(std::string_view comment, const CodePage& codePage) {
    return codePage.ToUtf8(WithoutLineBreaks(codePage.FromUtf8(comment).Text));
}

std::string CommentsFileLine(EntryNumber number, std::string_view comment, const CodePage& codePage) {
    return Blank + std::to_string(number) + Blank + FormatText(codePage.FromUtf8(comment).Text);
}

std::error_code SaveComments(const std::string& path, const EntryTable& entries, const CodePage& codePage) {
    return SaveComments(path, entries.Comments(), codePage);
}

std::error_code SaveComments(const std::string& path, const std::map<EntryNumber, std::string>& comments,
                             const CodePage& codePage) {
    AtomicFile file(path);
    TextFileRoom room(CommentsFileBounds);
    std::error_code error = room.Take(CommentsFileHeader);
    file.Stream() << CommentsFileHeader << "\r\n";
    for (const auto& [number, comment] : comments) {
        const std::string line = CommentsFileLine(number, comment, codePage);
        if (error = room.Take(line); error)
            return error;
        file.Stream() << line << "\r\n";
    }
    return file.Commit();
}
