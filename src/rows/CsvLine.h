// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <ostream>
#include <string>
#include <string_view>

// The form that lines are printed in.
struct RowForm {
    std::string Format =
        "jsonl"; // or "csv", "html", or "text" where the command has one; what follows is of CSV only
    char Separator = ',';            // of fields; or ";" or a TAB
    bool ByteOrderMark = false;      // at the beginning; some spreadsheets need it to recognise UTF-8
    bool Raw = false;                // no guard against text that a spreadsheet would run
    bool ControlsAreVisible = false; // for a terminal, see base/VisibleControls.h; a TAB stays

    // Of HTML only.
    Language Words = {};    // of headers and of what the list shows by icons alone
    std::string Title = {}; // of the page (UTF-8)
};

inline constexpr std::string_view ByteOrderMark = "\uFEFF";

// Makes the lines of a CSV file: RFC 4180. A text with any of the separators, a quotation mark or a line
// break stands in quotation marks.
//
// A spreadsheet may take a different character for the separator than the file has. It then begins a cell
// within a text. So unless Raw is set, an apostrophe is put before each "=", "+", "-", "@", TAB and CR at
// which a cell may begin: at the beginning of a text, and behind ";", ",", TAB and line breaks, also if only
// blanks, quotation marks or control characters stand between.
class CsvLine {
  public:
    explicit CsvLine(const RowForm& form) : form_(form) {}

    // A field as it is: a name, a number.
    void Append(std::string_view field);

    // A field with any text (UTF-8).
    void AppendText(std::string_view text);

    // Writes the line with its CR LF, and begins the next one.
    void Write(std::ostream& stream);

  private:
    RowForm form_;
    std::string line_;
    bool hasField_ = false;
};
