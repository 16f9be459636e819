// SPDX-License-Identifier: MIT
#include "cli/RecordWriter.h"

#include "base/StopRequest.h"
#include "base/VisibleControls.h"

#include <string>

namespace {

void AppendValue(const Record& value, CsvLine& line) {
    if (value.is_string())
        line.AppendText(value.get_ref<const std::string&>());
    else
        line.Append(value.is_null() ? std::string() : value.dump());
}

void WriteNames(const Record& names, CsvLine& line) {
    for (const auto& [name, value] : names.items())
        if (value.is_object())
            for (const auto& [inner, ignored] : value.items())
                line.Append(std::string(name).append("_").append(inner));
        else
            line.Append(name);
}

void AppendRecord(const Record& record, const Record& names, CsvLine& line) {
    for (const auto& [name, value] : names.items()) {
        const Record& field = record.at(name);
        if (!value.is_object())
            AppendValue(field, line);
        else
            for (const auto& [inner, ignored] : value.items())
                AppendValue(field.is_null() ? field : field.at(inner), line);
    }
}

} // namespace

Record Seconds(std::chrono::milliseconds time) {
    if (time.count() % 1000 == 0)
        return time.count() / 1000;
    return static_cast<double>(time.count()) / 1000.0;
}

void WriteRecords(std::size_t count, const std::function<Record(std::size_t)>& record, const Record& names,
                  const RowForm& form, std::ostream& stream) {
    const bool csv = form.Format == "csv";
    CsvLine line(form);
    if (csv) {
        WriteNames(names, line);
        stream << (form.ByteOrderMark ? ByteOrderMark : "");
        line.Write(stream);
    }
    for (std::size_t i = 0; i < count && stream && !StopRequest::IsMade(); ++i)
        if (csv) {
            AppendRecord(record(i), names, line);
            line.Write(stream);
        } else {
            stream << WithVisibleControls(record(i).dump()) << '\n';
        }
}
