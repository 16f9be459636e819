// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// The number of a raw line in an export.
using LineNumber = std::uint32_t;

// The raw lines of one export of a control's logbook: a file that begins with lines of the control's ring,
// whose first line may have been cut in the middle and whose last line may be unfinished. A line is compared
// with its line end, byte for byte.
//
// Reads the file once. Keeps 4 bytes a line, and goes back to the file for a line's text. All reading throws
// RunTimeError when the file can no longer be read as it was, and when the process has been asked to end.
class ExportLines {
  public:
    // By the first line, as the reader of logbooks decides it. An export that lost its first line to the ring
    // counts as Classic, whatever its lines are.
    enum class Form : std::uint8_t { Classic, Separated, Operation };

    // Reads a regular file. On failure `error` says why, and there are no lines.
    ExportLines(std::string path, std::error_code& error);

    const std::string& Path() const { return path_; }
    Form LogbookForm() const { return form_; }

    // The line with the version of an operation logbook, or the separator line that a separated logbook
    // begins with, with its line end. "" for a classic logbook and for a separator line that was cut. It is
    // none of the lines below.
    const std::string& Heading() const { return heading_; }

    // The lines that have a line end, by number from 0.
    LineNumber Count() const { return static_cast<LineNumber>(hashes_.size()); }

    // Equal lines have equal hashes; two others may have, too.
    std::uint32_t Hash(LineNumber line) const { return hashes_[line]; }

    // Line 0, which may have been cut; "" when there is none.
    const std::string& FirstLine() const { return firstLine_; }
    std::string Line(LineNumber line) const;

    // Where a line begins, in bytes. That of Count() is where the unfinished last line begins, if there is
    // one.
    std::uint64_t Begin(LineNumber line) const;
    std::uint64_t End() const { return end_; } // = Begin(Count())
    std::uint64_t Size() const { return size_; }

    // The separator line that is in force at a line: the last one before it, or the heading. Nothing when
    // none is known.
    std::optional<std::string> SeparatorBefore(LineNumber line) const;

  private:
    std::error_code Read(std::istream& file);
    void Take(std::string_view start, std::uint32_t hash, std::uint64_t begin);
    void TakeOpening();

    std::string path_;
    Form form_ = Form::Classic;
    std::string heading_;
    std::string firstLine_;
    std::vector<std::uint32_t> hashes_;
    std::vector<std::uint64_t> marks_; // where every MarkStep-th line begins
    std::vector<LineNumber> separators_;
    std::uint64_t end_ = 0;
    std::uint64_t size_ = 0;
};

// Reads raw lines of a file, each with its line end; the last one may have none. Takes the memory of the
// longest line.
class RawLineReader {
  public:
    // Begins at a place in bytes.
    RawLineReader(const std::string& path, std::uint64_t place);

    // False at the end of the file. `line` is valid until the next call. Throws RunTimeError when reading
    // fails.
    bool Next(std::string_view& line);

  private:
    bool ReadMore();

    std::ifstream file_;
    std::string buffer_;
    std::size_t used_ = 0;
};

// Whether the bytes of two exports are the same from these places on. False also when one of them ends
// before.
bool AreSameBytes(const ExportLines& one, std::uint64_t oneBegin, const ExportLines& other,
                  std::uint64_t otherBegin, std::uint64_t count);
