// SPDX-License-Identifier: MIT
#include "rows/RowWriter.h"

#include "base/VisibleControls.h"
#include "rows/CsvLine.h"
#include "rows/HtmlTable.h"

#include <nlohmann/json.hpp>

#include <string>

namespace {

// One row may take half a millisecond: some logbooks have data of megabytes.
constexpr std::size_t RowsPerCall = 16;

class JsonLinesWriter : public RowWriter {
  public:
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

class CsvWriter : public RowWriter {
  public:
    explicit CsvWriter(const RowForm& form) : begin_(form.ByteOrderMark ? ByteOrderMark : ""), line_(form) {}

    void WriteHeader(std::ostream& stream) override {
        for (const std::string_view field :
             {"index", "type", "event", "data", "sender", "name", "time", "icon", "highlighted", "comment"})
            line_.Append(field);
        stream << begin_;
        line_.Write(stream);
    }

    void WriteRow(const EntryTable& entries, const LogbookRow& row, std::ostream& stream) override {
        const LogbookEntry entry = entries[row.Entry];
        line_.Append(std::to_string(row.Entry));
        line_.Append(std::to_string(entry.EventType));
        for (const std::string_view text : {EventTypeName(entry.EventType), entry.Data, entry.Sender,
                                            entry.Name, std::string_view(entry.Time)})
            line_.AppendText(text);
        line_.Append(std::to_string(RowImage(row, entries)));
        line_.Append(row.Highlighted != 0 ? "true" : "false");
        line_.AppendText(entry.Comment);
        line_.Write(stream);
    }

  private:
    std::string_view begin_;
    CsvLine line_;
};

} // namespace

std::unique_ptr<RowWriter> MakeRowWriter(const RowForm& form) {
    if (form.Format == "csv")
        return std::make_unique<CsvWriter>(form);
    if (form.Format == "html")
        return std::make_unique<HtmlTable>(form);
    return std::make_unique<JsonLinesWriter>();
}

bool WriteRows(const EntryTable& entries, const LogbookRows& rows, const RowForm& form, std::ostream& stream,
               const std::function<bool(double percent)>& goesOn) {
    const std::unique_ptr<RowWriter> writer = MakeRowWriter(form);
    writer->WriteHeader(stream);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (!stream || (row % RowsPerCall == 0 &&
                        !goesOn(100.0 * static_cast<double>(row) / static_cast<double>(rows.size()))))
            return false;
        writer->WriteRow(entries, rows[row], stream);
    }
    writer->WriteEnd(stream);
    stream.flush();
    return static_cast<bool>(stream) && goesOn(100.0);
}
