// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "rows/CsvLine.h"

#include <functional>
#include <memory>
#include <ostream>
#include <string>

// Writes rows of the list in one of the forms for other programs, in UTF-8: the header, the rows, the end.
class RowWriter {
  public:
    virtual ~RowWriter() = default;
    virtual void WriteHeader(std::ostream&) {}
    virtual void WriteRow(const EntryTable& entries, const LogbookRow& row, std::ostream& stream) = 0;
    virtual void WriteEnd(std::ostream&) {}
};

// "jsonl": JSON Lines, one object a row, with U+007F to U+009F escaped like the other control characters.
//
// "csv": as CsvLine has it, with a header line.
//
// Both have the same fields in the same order: index, type, event, data, sender, name, time, icon,
// highlighted, comment.
//
// "html": a page with a table for a person to read, see HtmlTable.h.
std::unique_ptr<RowWriter> MakeRowWriter(const RowForm& form);

// Writes all rows in a form, with header and end. `goesOn` is told the percentage done, again and again; the
// writing ends when it returns false or the stream fails. False when it ended early. Memory does not grow
// with the rows.
bool WriteRows(const EntryTable& entries, const LogbookRows& rows, const RowForm& form, std::ostream& stream,
               const std::function<bool(double percent)>& goesOn);
