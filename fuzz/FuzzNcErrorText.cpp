// SPDX-License-Identifier: MIT
// Any bytes as the classic NC errors, qx_error_help.txt.
#include "FuzzErrorText.h"
#include "eventinfo/ClassicNcErrorText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view content = TextOf(data, size);
    const std::int64_t number = TakeNumber(content);
    const MemoryFile file(content);
    const std::optional<EventTextRecord> record = ReadClassicNcErrorText(file.Path(), number);
    CheckRecord(record, number);
    if (record) {
        Check(record->Id.empty() && record->Reaction.empty());
        Check(record->Message.find('\n') == std::string::npos);
    }
    // Behind the last line feed a carriage return is a line of its own.
    if (!content.ends_with('\r')) {
        const MemoryFile same(WithoutReturns(content));
        Check(ReadClassicNcErrorText(same.Path(), number) == record);
    }
    return 0;
}
