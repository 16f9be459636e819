// SPDX-License-Identifier: MIT
#include "tools/LineBuffer.h"

#include <cstring>

LineBuffer::LineBuffer(std::ostream& sink) : out(sink), buffer(std::make_unique<char[]>(Capacity)) {}

void LineBuffer::Append(std::string_view text) {
    std::memcpy(buffer.get() + used, text.data(), text.size());
    used += text.size();
}

void LineBuffer::AppendDecimal(std::uint64_t value, std::size_t digits) {
    for (std::size_t place = digits; place > 0; --place) {
        buffer[used + place - 1] = static_cast<char>('0' + value % 10);
        value /= 10;
    }
    used += digits;
}

void LineBuffer::AppendNumber(std::uint64_t value) {
    std::size_t digits = 1;
    for (std::uint64_t rest = value; rest > 9; rest /= 10)
        ++digits;
    AppendDecimal(value, digits);
}

void LineBuffer::AppendHex(std::uint64_t value, std::size_t digits) {
    constexpr std::string_view HexDigits = "0123456789ABCDEF";
    for (std::size_t place = digits; place > 0; --place) {
        buffer[used + place - 1] = HexDigits[value & 0xF];
        value >>= 4;
    }
    used += digits;
}

void LineBuffer::PadTo(std::size_t column) {
    const std::size_t next = Column();
    if (next >= column)
        return;
    std::memset(buffer.get() + used, ' ', column - next);
    used += column - next;
}

void LineBuffer::EndLine() {
    Append('\r');
    Append('\n');
    lineStart = used;
}

void LineBuffer::Flush() {
    out.write(buffer.get(), static_cast<std::streamsize>(used));
    handedOn += used;
    used = 0;
    lineStart = 0;
}
