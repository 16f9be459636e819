// SPDX-License-Identifier: MIT
#include "cli/RecordWriter.h"

#include "base/VisibleControls.h"

#include <string>

namespace {

void AppendValue(const Record& value, CsvLine& line) {
    if (value.is_string())
        line.AppendText(value.get_ref<const std::string&>());
    else
        line.Append(value.is_null() ? std::string() : value.dump());
}

void WriteCsv(const std::vector<Record>& records, const Record& names, const RowForm& form,
              std::ostream& stream) {
    CsvLine line(form);
    for (const auto& [name, value] : names.items())
        if (value.is_object())
            for (const auto& [inner, ignored] : value.items())
                line.Append(name + '_' + inner);
        else
            line.Append(name);
    stream << (form.ByteOrderMark ? ByteOrderMark : "");
    line.Write(stream);
    for (const Record& record : records) {
        for (const auto& [name, value] : names.items())
            if (value.is_object())
                for (const auto& [inner, ignored] : value.items())
                    AppendValue(record[name].is_null() ? Record() : record[name][inner], line);
            else
                AppendValue(record[name], line);
        line.Write(stream);
    }
}

} // namespace

Record Seconds(std::chrono::milliseconds time) {
    if (time.count() % 1000 == 0)
        return time.count() / 1000;
    return static_cast<double>(time.count()) / 1000.0;
}

void WriteRecords(const std::vector<Record>& records, const Record& names, const RowForm& form,
                  std::ostream& stream) {
    if (form.Format == "csv")
        return WriteCsv(records, names, form, stream);
    for (const Record& record : records)
        stream << WithVisibleControls(record.dump()) << '\n';
}
