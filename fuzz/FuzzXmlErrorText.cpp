// SPDX-License-Identifier: MIT
// Any bytes as a facility's text file.
#include "FuzzErrorText.h"
#include "eventinfo/XmlErrorText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view content = TextOf(data, size);
    const std::int64_t number = TakeNumber(content);
    const MemoryFile file(content);
    const std::optional<EventTextRecord> record = ReadXmlErrorText(file.Path(), number);
    CheckRecord(record, number);
    const MemoryFile same(WithoutReturns(content));
    Check(ReadXmlErrorText(same.Path(), number) == record);
    return 0;
}
