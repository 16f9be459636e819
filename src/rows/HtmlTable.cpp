// SPDX-License-Identifier: MIT
#include "rows/HtmlTable.h"

#include "base/VisibleControls.h"
#include "logbook/EventLines.h"
#include "rows/LogbookColumns.h"
#include "rows/SpokenRow.h"

namespace {

constexpr std::string_view Style = R"(:root { color-scheme: light dark; }
body { margin: 1rem; font: 0.9rem/1.4 system-ui, sans-serif; color: #1a1a1a; background: #ffffff; }
h1 { font-size: 1.3rem; }
table { border-collapse: collapse; width: 100%; }
th, td { padding: 0.2em 0.5em; border-bottom: 1px solid #c4c4c4; text-align: left; vertical-align: top;
  overflow-wrap: anywhere; }
th { position: sticky; top: 0; background: #e8e8e8; }
td:nth-child(1) { border-left: 0.4em solid transparent; }
td:nth-child(5), td:nth-child(6) { white-space: nowrap; overflow-wrap: normal; }
td:nth-child(6) { text-align: right; }
tr.highlighted td { background: #fff1a8; }
tr.highlighted td:nth-child(1) { border-left-color: #9a6b00; font-weight: bold; }
@media (prefers-color-scheme: dark) {
  body { color: #e6e6e6; background: #1b1b1b; }
  th { background: #333333; }
  th, td { border-bottom-color: #4d4d4d; }
  tr.highlighted td { background: #4a3d00; }
  tr.highlighted td:nth-child(1) { border-left-color: #e0b000; }
}
@media print {
  body { margin: 0; font-size: 8pt; color: #000000; background: #ffffff; }
  thead { display: table-header-group; }
  th { position: static; background: none; border-bottom: 1.5pt solid #000000; }
  tr { break-inside: avoid; }
  tr.highlighted td { background: none; }
  tr.highlighted td:nth-child(1) { border-left-color: #000000; }
}
)";

// The text of a cell, its lines below each other.
void WriteLines(std::string_view cell, std::ostream& stream) {
    for (std::size_t end; (end = cell.find(LineSeparator)) != std::string_view::npos;
         cell.remove_prefix(end + LineSeparator.size()))
        stream << AsHtmlText(cell.substr(0, end)) << "<br>";
    stream << AsHtmlText(cell);
}

} // namespace

std::string AsHtmlText(std::string_view text) {
    const std::string visible = WithVisibleControls(text, "\t");
    std::string escaped;
    escaped.reserve(visible.size());
    for (const char c : visible)
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        case '\'':
            escaped += "&#39;";
            break;
        default:
            escaped += c;
        }
    return escaped;
}

void HtmlTable::WriteHeader(std::ostream& stream) {
    const std::string title = AsHtmlText(form_.Title);
    stream << "<!DOCTYPE html>\n<html lang=\"" << (form_.Words.IsGerman() ? "de" : "en")
           << "\">\n<head>\n<meta charset=\"utf-8\">\n"
              "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>"
           << title << "</title>\n<style>\n"
           << Style << "</style>\n</head>\n<body>\n<h1>" << title << "</h1>\n<table>\n<thead>\n<tr>";
    for (const LogbookColumnInfo& column : LogbookColumns)
        stream << "<th scope=\"col\">" << AsHtmlText(Text(column.Header, form_.Words)) << "</th>";
    stream << "</tr>\n</thead>\n<tbody>\n";
}

void HtmlTable::WriteRow(const EntryTable& entries, const LogbookRow& row, std::ostream& stream) {
    stream << (row.Highlighted != 0 ? "<tr class=\"highlighted\">" : "<tr>");
    for (int column = 0; column < LogbookColumnCount; ++column) {
        stream << "<td>";
        if (static_cast<LogbookColumn>(column) == LogbookColumn::Event)
            stream << AsHtmlText(SpokenRow(entries, row, form_.Words));
        else
            WriteLines(CellText(entries, row.Entry, static_cast<LogbookColumn>(column)), stream);
        stream << "</td>";
    }
    stream << "</tr>\n";
}

void HtmlTable::WriteEnd(std::ostream& stream) { stream << "</tbody>\n</table>\n</body>\n</html>\n"; }
