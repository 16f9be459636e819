// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"

#include <memory>
#include <ostream>
#include <string>

// The form that rows are printed in.
struct RowForm {
    std::string Format = "jsonl";    // or "csv"; what follows is of CSV only
    char Separator = ',';            // of fields; or ";" or a TAB
    bool ByteOrderMark = false;      // at the beginning; some spreadsheets need it to recognise UTF-8
    bool Raw = false;                // no guard against text that a spreadsheet would run
    bool ControlsAreVisible = false; // for a terminal, see logbook/VisibleControls.h; a TAB stays
};

// Writes rows of the list in one of the forms that the tool prints. All are UTF-8 and have the same fields in
// the same order: index, type, event, data, sender, name, time, icon, highlighted, comment.
class RowWriter {
  public:
    virtual ~RowWriter() = default;
    virtual void WriteHeader(std::ostream& stream) = 0;
    virtual void WriteRow(const EntryTable& entries, const LogbookRow& row, std::ostream& stream) = 0;
};

// "jsonl": JSON Lines, one object a row, with U+007F to U+009F escaped like the other control characters.
//
// "csv": RFC 4180 with a header line. A text with any of the separators, a quotation mark or a line break
// stands in quotation marks.
//
// A spreadsheet may take a different character for the separator than the file has. It then begins a cell
// within a text. So unless Raw is set, an apostrophe is put before each "=", "+", "-", "@", TAB and CR at
// which a cell may begin: at the beginning of a text, and behind ";", ",", TAB and line breaks, also if only
// blanks, quotation marks or control characters stand between.
std::unique_ptr<RowWriter> MakeRowWriter(const RowForm& form);
