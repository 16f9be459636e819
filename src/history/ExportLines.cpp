// SPDX-License-Identifier: MIT
#include "history/ExportLines.h"

#include "base/FileProblem.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/StopRequest.h"
#include "history/RawStamp.h"

#include <xxhash.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <utility>

namespace {

constexpr std::size_t BlockSize = std::size_t{256} << 10U;
constexpr LineNumber MarkStep = 256;
constexpr LineNumber MostLines = std::numeric_limits<LineNumber>::max() / 2;

constexpr std::string_view SeparatorMark = "___";
constexpr std::string_view OperationHeading = "Operation Logbook Version";

std::uint32_t ShortHash(XXH64_hash_t hash) { return static_cast<std::uint32_t>(hash ^ hash >> 32U); }

// Puts the hash of a line together whose pieces lie in several blocks, and keeps how the line begins.
class LineInPieces {
  public:
    LineInPieces() : state_(XXH3_createState(), XXH3_freeState) {
        if (!state_)
            throw std::bad_alloc();
    }

    bool IsEmpty() const { return length_ == 0; }

    void Add(std::string_view piece) {
        if (IsEmpty())
            XXH3_64bits_reset(state_.get());
        XXH3_64bits_update(state_.get(), piece.data(), piece.size());
        length_ += piece.size();
        start_.append(piece.substr(0, SeparatorMark.size() - std::min(start_.size(), SeparatorMark.size())));
    }

    const std::string& Start() const { return start_; }
    std::uint64_t Length() const { return length_; }

    std::uint32_t End() {
        length_ = 0;
        start_.clear();
        return ShortHash(XXH3_64bits_digest(state_.get()));
    }

  private:
    std::unique_ptr<XXH3_state_t, XXH_errorcode (*)(XXH3_state_t*)> state_;
    std::string start_; // its first characters, as many as a separator line is known by
    std::uint64_t length_ = 0;
};

std::ifstream OpenAt(const std::string& path, std::uint64_t place) {
    std::ifstream file;
    // The block is the buffer.
    file.rdbuf()->pubsetbuf(nullptr, 0);
    file.open(ToPath(path), std::ios::binary);
    file.seekg(static_cast<std::streamoff>(place));
    if (!file)
        throw RunTimeError("an export cannot be opened again");
    return file;
}

// As many bytes as there are, at most `most`; 0 at the end. Throws when reading fails.
std::size_t ReadBytes(std::istream& file, char* to, std::size_t most) {
    if (StopRequest::IsMade())
        throw RunTimeError("the process was asked to end");
    file.read(to, static_cast<std::streamsize>(most));
    if (file.bad())
        throw RunTimeError("an export cannot be read");
    return static_cast<std::size_t>(file.gcount());
}

} // namespace

ExportLines::ExportLines(std::string path, std::error_code& error) : path_(std::move(path)) {
    if (error = CheckRegularFile(ToPath(path_)); error)
        return;
    try {
        std::ifstream file = OpenAt(path_, 0);
        error = Read(file);
        if (!error)
            TakeOpening();
    } catch (const RunTimeError&) {
        error =
            std::make_error_code(StopRequest::IsMade() ? std::errc::operation_canceled : std::errc::io_error);
    } catch (const std::bad_alloc&) {
        error = std::make_error_code(std::errc::not_enough_memory);
    }
}

std::error_code ExportLines::Read(std::istream& file) {
    std::string block(BlockSize, '\0');
    LineInPieces pieces;
    while (const std::size_t got = ReadBytes(file, block.data(), block.size())) {
        const char* at = block.data();
        const char* const end = at + got;
        while (const void* const found = std::memchr(at, '\n', static_cast<std::size_t>(end - at))) {
            const char* const next = static_cast<const char*>(found) + 1;
            const std::string_view line(at, static_cast<std::size_t>(next - at));
            if (hashes_.size() == MostLines)
                return FileProblem::TooManyLines;
            if (pieces.IsEmpty()) {
                Take(line, ShortHash(XXH3_64bits(line.data(), line.size())), end_);
                end_ += line.size();
            } else {
                pieces.Add(line);
                const std::string start = pieces.Start();
                const std::uint64_t length = pieces.Length();
                Take(start, pieces.End(), end_);
                end_ += length;
            }
            at = next;
        }
        if (at != end)
            pieces.Add({at, static_cast<std::size_t>(end - at)});
        size_ += got;
    }
    return {};
}

void ExportLines::Take(std::string_view start, std::uint32_t hash, std::uint64_t begin) {
    const auto number = static_cast<LineNumber>(hashes_.size());
    if (number % MarkStep == 0)
        marks_.push_back(begin);
    if (start.starts_with(SeparatorMark))
        separators_.push_back(number);
    hashes_.push_back(hash);
}

// Sets the heading apart from the lines.
void ExportLines::TakeOpening() {
    RawLineReader lines(path_, 0);
    std::string_view line;
    if (!lines.Next(line))
        return;
    if (line.starts_with(SeparatorMark))
        form_ = Form::Separated;
    else if (line.starts_with(OperationHeading))
        form_ = Form::Operation;
    if (Count() == 0)
        return;
    if (form_ == Form::Operation || IsDatedSeparator(line)) {
        heading_ = line;
        hashes_.erase(hashes_.begin());
        // The marks stay those of the file's lines, which are one more.
        if (!separators_.empty() && separators_.front() == 0)
            separators_.erase(separators_.begin());
        for (LineNumber& separator : separators_)
            --separator;
        lines.Next(line);
    }
    if (Count() != 0)
        firstLine_ = line;
}

std::uint64_t ExportLines::Begin(LineNumber line) const {
    if (line >= Count())
        return end_;
    const LineNumber inFile = line + (heading_.empty() ? 0 : 1);
    std::uint64_t place = marks_[inFile / MarkStep];
    RawLineReader lines(path_, place);
    std::string_view passed;
    for (LineNumber i = 0; i < inFile % MarkStep; ++i) {
        if (!lines.Next(passed))
            throw RunTimeError("an export has become shorter");
        place += passed.size();
    }
    return place;
}

std::string ExportLines::Line(LineNumber line) const {
    RawLineReader lines(path_, Begin(line));
    std::string_view text;
    if (!lines.Next(text))
        throw RunTimeError("an export has become shorter");
    return std::string(text);
}

std::optional<std::string> ExportLines::SeparatorBefore(LineNumber line) const {
    const auto behind = std::lower_bound(separators_.begin(), separators_.end(), line);
    if (behind != separators_.begin())
        return Line(*(behind - 1));
    return form_ == Form::Separated && !heading_.empty() ? std::optional(heading_) : std::nullopt;
}

RawLineReader::RawLineReader(const std::string& path, std::uint64_t place) : file_(OpenAt(path, place)) {}

bool RawLineReader::ReadMore() {
    constexpr std::size_t Step = 16384;
    const std::size_t had = buffer_.size();
    const std::size_t step = std::max(Step, had);
    buffer_.resize(had + step);
    const std::size_t got = ReadBytes(file_, buffer_.data() + had, step);
    buffer_.resize(had + got);
    return got != 0;
}

bool RawLineReader::Next(std::string_view& line) {
    std::size_t searched = used_;
    std::size_t lineFeed = buffer_.find('\n', searched);
    if (lineFeed == std::string::npos) {
        buffer_.erase(0, used_);
        used_ = 0;
        do {
            searched = buffer_.size();
        } while (ReadMore() && (lineFeed = buffer_.find('\n', searched)) == std::string::npos);
    }
    const std::size_t end = lineFeed == std::string::npos ? buffer_.size() : lineFeed + 1;
    line = std::string_view(buffer_).substr(used_, end - used_);
    used_ = end;
    return !line.empty();
}

bool AreSameBytes(const ExportLines& one, std::uint64_t oneBegin, const ExportLines& other,
                  std::uint64_t otherBegin, std::uint64_t count) {
    if (oneBegin + count > one.Size() || otherBegin + count > other.Size())
        return false;
    std::ifstream oneFile = OpenAt(one.Path(), oneBegin);
    std::ifstream otherFile = OpenAt(other.Path(), otherBegin);
    std::string oneBlock(BlockSize, '\0');
    std::string otherBlock(BlockSize, '\0');
    while (count != 0) {
        const std::size_t most = static_cast<std::size_t>(std::min<std::uint64_t>(count, BlockSize));
        if (ReadBytes(oneFile, oneBlock.data(), most) != most ||
            ReadBytes(otherFile, otherBlock.data(), most) != most)
            throw RunTimeError("an export has become shorter");
        if (std::memcmp(oneBlock.data(), otherBlock.data(), most) != 0)
            return false;
        count -= most;
    }
    return true;
}
