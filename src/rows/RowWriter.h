// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "rows/CsvLine.h"

#include <memory>
#include <ostream>
#include <string>

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
// "csv": as CsvLine has it, with a header line.
std::unique_ptr<RowWriter> MakeRowWriter(const RowForm& form);
