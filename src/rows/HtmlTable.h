// SPDX-License-Identifier: MIT
#pragma once

#include "rows/RowWriter.h"

#include <string>
#include <string_view>

// Writes rows as a page of HTML that is complete in itself and runs nothing: a table with the columns of the
// list, in the language of the form. What the list shows by an icon or a highlight alone stands in words
// beside the event type; a highlighted row has the class "highlighted", too. The lines of data and comments
// stand below each other, and control characters are visible (base/VisibleControls.h). The page follows a
// dark desktop, and prints black on white with the headers on each sheet.
class HtmlTable : public RowWriter {
  public:
    explicit HtmlTable(const RowForm& form) : form_(form) {}

    void WriteHeader(std::ostream& stream) override;
    void WriteRow(const EntryTable& entries, const LogbookRow& row, std::ostream& stream) override;
    void WriteEnd(std::ostream& stream) override;

  private:
    RowForm form_;
};

// The text for a place between tags or within an attribute, on one line.
std::string AsHtmlText(std::string_view text);
