// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"

#include <memory>
#include <ostream>
#include <string_view>

// Writes rows of the list in one of the forms that the tool prints. All are UTF-8 and have the same fields in
// the same order: index, type, event, data, sender, name, time, icon, highlighted, comment.
class RowWriter {
  public:
    virtual ~RowWriter() = default;
    virtual void WriteHeader(std::ostream& stream) = 0;
    virtual void WriteRow(const EntryTable& entries, const LogbookRow& row, std::ostream& stream) = 0;
};

// "jsonl": JSON Lines, one object a row. "csv": RFC 4180 with a header line; unless `raw` is set, a text that
// a spreadsheet would take for a formula begins with an apostrophe.
std::unique_ptr<RowWriter> MakeRowWriter(std::string_view format, bool raw);
