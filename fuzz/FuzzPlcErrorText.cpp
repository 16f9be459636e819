// SPDX-License-Identifier: MIT
// Any bytes as the classic errors of the machine program: error.a, reason.a and fix.a, with a line "=="
// between them.
#include "FuzzErrorText.h"
#include "eventinfo/ClassicPlcErrorText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder folder;
    std::string_view content = TextOf(data, size);
    const std::int64_t number = TakeNumber(content);
    const std::string_view error = TakePart(content, "\n==\n");
    const std::string_view reason = TakePart(content, "\n==\n");
    const auto write = [&](auto change) {
        folder.Write("error.a", change(error));
        folder.Write("reason.a", change(reason));
        folder.Write("FIX.A", change(content));
    };
    write([](std::string_view text) { return text; });
    const std::optional<EventTextRecord> record = ReadClassicPlcErrorText(folder.Path().string(), number);
    CheckRecord(record, number);
    if (record) {
        Check(number <= 999 && record->Id.empty() && record->Reaction.empty());
        Check(record->Message.find('\n') == std::string::npos);
    }
    write(WithoutReturns);
    Check(ReadClassicPlcErrorText(folder.Path().string(), number) == record);
    return 0;
}
