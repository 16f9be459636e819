// SPDX-License-Identifier: MIT
#include "tools/WrittenStamp.h"

#include "tools/MachineClock.h"

namespace {

constexpr std::size_t ClockLength = 8;
constexpr std::size_t ExactClockLength = 12;

// 12:34:56, with .789 when the text has it
std::string_view ClockIn(std::string_view text) {
    return text.substr(0, text.substr(ClockLength).starts_with('.') ? ExactClockLength : ClockLength);
}

} // namespace

WrittenStamp ReadStamp(Generation generation, std::string_view firstLine, const MachineClock& clock) {
    constexpr std::size_t DateLength = 11; // with the blank behind it
    constexpr std::size_t SeparatedColumn = 44;
    std::string_view time;
    if (generation == Generation::Separated) {
        time = ClockIn(firstLine.substr(SeparatedColumn));
    } else {
        const bool exact = firstLine[firstLine.size() - 4] == '.';
        const std::size_t length = DateLength + (exact ? ExactClockLength : ClockLength);
        time = firstLine.substr(firstLine.size() - length + DateLength);
    }
    WrittenStamp stamp;
    stamp.iso = clock.IsoDate().append("T").append(time);
    stamp.exact = time.size() == ExactClockLength;
    stamp.milliseconds = stamp.exact ? clock.Now() : clock.Now() / 1000 * 1000;
    return stamp;
}
