// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <ostream>
#include <string_view>

// Collects the lines of a logbook and hands them on in large pieces. Columns count from 1, one byte a
// character; line ends are CR LF. Nothing is handed on before Flush() or the next MakeRoom().
class LineBuffer {
  public:
    // The room that MakeRoom() guarantees: more than any one event takes.
    static constexpr std::size_t EventRoom = 8192;

    explicit LineBuffer(std::ostream& sink);

    // To be called before each event: the appending functions do not look at the room that is left.
    void MakeRoom() {
        if (used + EventRoom > Capacity)
            Flush();
    }

    void Append(char character) { buffer[used++] = character; }
    void Append(std::string_view text);

    // `digits` digits with leading zeros; higher digits are dropped.
    void AppendDecimal(std::uint64_t value, std::size_t digits);
    // As many digits as the value has.
    void AppendNumber(std::uint64_t value);
    // Upper-case hexadecimal digits with leading zeros.
    void AppendHex(std::uint64_t value, std::size_t digits);

    // The column that the next character gets.
    std::size_t Column() const { return used - lineStart + 1; }
    // Appends blanks until the next character gets this column; nothing when the line is already longer.
    void PadTo(std::size_t column);
    void EndLine();

    // How many bytes wait to be handed on, and those of them from the `begin`th on. Valid until the next
    // append.
    std::size_t Waiting() const { return used; }
    std::string_view WaitingFrom(std::size_t begin) const { return {buffer.get() + begin, used - begin}; }

    void Flush();
    // The bytes appended so far, handed on or not.
    std::uint64_t BytesWritten() const { return handedOn + used; }

  private:
    static constexpr std::size_t Capacity = std::size_t{1} << 20;

    std::ostream& out;
    std::unique_ptr<char[]> buffer;
    std::size_t used = 0;
    std::size_t lineStart = 0;
    std::uint64_t handedOn = 0;
};
