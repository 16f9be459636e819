// SPDX-License-Identifier: MIT
#include "cli/RowWriter.h"

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
        stream << object.dump() << '\n';
    }
};

class CsvWriter : public RowWriter {
  public:
    explicit CsvWriter(bool raw) : raw_(raw) {}

    void WriteHeader(std::ostream& stream) override {
        stream << "index,type,event,data,sender,name,time,icon,highlighted,comment\r\n";
    }

    void WriteRow(const EntryTable& entries, const LogbookRow& row, std::ostream& stream) override {
        const LogbookEntry entry = entries[row.Entry];
        line_ = std::to_string(row.Entry);
        line_.append(",").append(std::to_string(entry.EventType));
        for (const std::string_view text : {EventTypeName(entry.EventType), entry.Data, entry.Sender,
                                            entry.Name, std::string_view(entry.Time)})
            AppendText(text);
        line_.append(",").append(std::to_string(RowImage(row, entries)));
        line_.append(row.Highlighted != 0 ? ",true" : ",false");
        AppendText(entry.Comment);
        stream << line_ << "\r\n";
    }

  private:
    void AppendText(std::string_view text) {
        constexpr std::string_view FormulaStarts = "=+-@\t\r";
        const bool guarded =
            !raw_ && !text.empty() && FormulaStarts.find(text.front()) != std::string_view::npos;
        const bool quoted = text.find_first_of("\",\r\n") != std::string_view::npos;
        line_ += ',';
        if (quoted)
            line_ += '"';
        if (guarded)
            line_ += '\'';
        for (const char c : text) {
            if (c == '"')
                line_ += '"';
            line_ += c;
        }
        if (quoted)
            line_ += '"';
    }

    bool raw_;
    std::string line_;
};

} // namespace

std::unique_ptr<RowWriter> MakeRowWriter(std::string_view format, bool raw) {
    if (format == "csv")
        return std::make_unique<CsvWriter>(raw);
    return std::make_unique<JsonLinesWriter>();
}
