// SPDX-License-Identifier: MIT
#include "cli/RowWriter.h"

#include "base/VisibleControls.h"

#include <nlohmann/json.hpp>

#include <string>

namespace {

class JsonLinesWriter : public RowWriter {
  public:
    void WriteHeader(std::ostream&) override {}

    void WriteRow(const EntryTable& entries, const LogbookRow& row, std::ostream& stream) override {
        const LogbookEntry entry = entries[row.Entry];
        const nlohmann::ordered_json object{
            {"index", static_cast<EntryNumber>(row.Entry)},
            {"type", entry.EventType},
            {"event", EventTypeName(entry.EventType)},
            {"data", entry.Data},
            {"sender", entry.Sender},
            {"name", entry.Name},
            {"time", entry.Time},
            {"icon", RowImage(row, entries)},
            {"highlighted", row.Highlighted != 0},
            {"comment", entry.Comment},
        };
        stream << WithVisibleControls(object.dump()) << '\n';
    }
};

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

class CsvWriter : public RowWriter {
  public:
    explicit CsvWriter(const RowForm& form) : form_(form) {}

    void WriteHeader(std::ostream& stream) override {
        line_ = form_.ByteOrderMark ? "\uFEFFindex" : "index";
        for (const std::string_view field :
             {"type", "event", "data", "sender", "name", "time", "icon", "highlighted", "comment"})
            Append(field);
        stream << line_ << "\r\n";
    }

    void WriteRow(const EntryTable& entries, const LogbookRow& row, std::ostream& stream) override {
        const LogbookEntry entry = entries[row.Entry];
        line_ = std::to_string(row.Entry);
        Append(std::to_string(entry.EventType));
        for (const std::string_view text : {EventTypeName(entry.EventType), entry.Data, entry.Sender,
                                            entry.Name, std::string_view(entry.Time)})
            AppendText(text);
        Append(std::to_string(RowImage(row, entries)));
        Append(row.Highlighted != 0 ? "true" : "false");
        AppendText(entry.Comment);
        stream << line_ << "\r\n";
    }

  private:
    void Append(std::string_view field) {
        line_ += form_.Separator;
        line_ += field;
    }

    void AppendText(std::string_view text) {
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

    RowForm form_;
    std::string line_;
};

} // namespace

std::unique_ptr<RowWriter> MakeRowWriter(const RowForm& form) {
    if (form.Format == "csv")
        return std::make_unique<CsvWriter>(form);
    return std::make_unique<JsonLinesWriter>();
}
