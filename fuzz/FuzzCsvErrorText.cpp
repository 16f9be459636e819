// SPDX-License-Identifier: MIT
// Any bytes as the list of the error texts, ErrorText.csv.
#include "FuzzErrorText.h"
#include "eventinfo/CsvErrorText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view content = TextOf(data, size);
    const std::int64_t number = TakeNumber(content);
    const MemoryFile file(content);
    const std::optional<EventTextRecord> record = ReadCsvErrorText(file.Path(), number);
    CheckRecord(record, number);
    if (record) {
        Check(record->Id.empty() && record->Reaction.empty());
        Check(record->Message.find('\n') == std::string::npos);
        for (const std::string& text : {record->Message, record->Cause, record->Fix})
            Check(text.find_first_of(";\"") == std::string::npos);
        for (const std::string& text : {record->Cause, record->Fix})
            Check(text.find('|') == std::string::npos);
    }
    const MemoryFile same(WithoutReturns(content));
    Check(ReadCsvErrorText(same.Path(), number) == record);
    return 0;
}
