// SPDX-License-Identifier: MIT
#include "rows/CsvLine.h"

#include "base/VisibleControls.h"

namespace {

// Where a program that takes any of these for the separator begins a cell.
constexpr std::string_view CellEnds = ";,\t\r\n";
constexpr std::string_view FormulaStarts = "=+-@\t\r";

// What a cell may begin with that a program drops, or does not look at: blanks, the no-break space's bytes,
// quotation marks, control characters.
bool MayBeDropped(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte <= ' ' || c == '"' || byte == 0x7F || byte == 0xC2 || byte == 0xA0;
}

// The text with an apostrophe before each character that makes a formula of a cell.
std::string Guarded(std::string_view text) {
    std::string guarded;
    bool cellBegins = true;
    for (const char c : text) {
        if (cellBegins && FormulaStarts.find(c) != std::string_view::npos)
            guarded += '\'';
        guarded += c;
        cellBegins = CellEnds.find(c) != std::string_view::npos || (cellBegins && MayBeDropped(c));
    }
    return guarded;
}

} // namespace

void CsvLine::Append(std::string_view field) {
    if (hasField_)
        line_ += form_.Separator;
    hasField_ = true;
    line_ += field;
}

void CsvLine::AppendText(std::string_view text) {
    std::string changed;
    if (form_.ControlsAreVisible)
        text = changed = WithVisibleControls(text, "\t");
    if (!form_.Raw && text.find_first_of(FormulaStarts) != std::string_view::npos)
        text = changed = Guarded(text);
    if (text.find_first_of("\"\r\n\t;,") == std::string_view::npos)
        return Append(text);
    Append("\"");
    for (const char c : text) {
        if (c == '"')
            line_ += '"';
        line_ += c;
    }
    line_ += '"';
}

void CsvLine::Write(std::ostream& stream) {
    stream << line_ << "\r\n";
    line_.clear();
    hasField_ = false;
}
