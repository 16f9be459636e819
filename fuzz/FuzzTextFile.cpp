// SPDX-License-Identifier: MIT
// A text file is its text split at the line ends, up to the first line that is too long: the first three
// bytes are the block size, the longest line and the largest file, in units of eight bytes; below the first
// line stands the file.
#include "FuzzSupport.h"
#include "base/FileProblem.h"
#include "base/TextFile.h"

namespace {

std::size_t NumberAt(std::string_view head, std::size_t place) {
    return place < head.size() ? static_cast<unsigned char>(head[place]) : 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text = TextOf(data, size);
    const std::string_view head = TakeLine(text);
    const TextFileBounds bounds{.File = NumberAt(head, 2) * 8, .Line = NumberAt(head, 1)};
    const MemoryFile content(text);
    TextFile file(content.Path(), bounds, NumberAt(head, 0));

    std::error_code expected;
    if (text.size() > bounds.File)
        expected = FileProblem::TooLarge;
    TextFileRoom room(bounds);
    std::string_view line;
    while (!expected && !text.empty()) {
        std::string_view next = TakeLine(text);
        if (next.ends_with('\r'))
            next.remove_suffix(1);
        if (next.size() > bounds.Line) {
            expected = FileProblem::LineTooLong;
            break;
        }
        Check(file.ReadLine(line) && line == next);
        Check(room.Take(next) != FileProblem::LineTooLong);
    }
    Check(!file.ReadLine(line));
    Check(file.Error() == expected);
    return 0;
}
