// SPDX-License-Identifier: MIT
#include "base/TextFile.h"

#include "base/FileProblem.h"
#include "base/LastError.h"
#include "base/Paths.h"

#include <algorithm>

TextFile::TextFile(const std::string& path, const TextFileBounds& bounds, std::size_t blockSize)
    : bounds_(bounds), block_(std::max<std::size_t>(blockSize, 1)), error_(CheckRegularFile(ToPath(path))) {
    if (error_)
        return;
    errno = 0;
    stream_.open(ToPath(path), std::ios::binary);
    if (!stream_) {
        error_ = LastError();
        return;
    }
    std::error_code ignored;
    const std::uintmax_t size = std::filesystem::file_size(ToPath(path), ignored);
    if (!ignored && size > bounds_.File)
        error_ = FileProblem::TooLarge;
}

bool TextFile::Fail(std::error_code error) {
    error_ = error;
    return false;
}

// The next block, once nothing is left of this one. False at the end of the file.
bool TextFile::ReadBlock() {
    errno = 0;
    stream_.read(block_.data(), static_cast<std::streamsize>(block_.size()));
    if (stream_.bad())
        return Fail(LastError());
    rest_ = {block_.data(), static_cast<std::size_t>(stream_.gcount())};
    read_ += rest_.size();
    // The file may have grown since it was opened.
    return read_ <= bounds_.File ? !rest_.empty() : Fail(FileProblem::TooLarge);
}

bool TextFile::ReadLine(std::string_view& line) {
    line_.clear();
    bool ended = false;
    bool any = false;
    while (!error_ && !ended && (!rest_.empty() || ReadBlock())) {
        any = true;
        const std::size_t end = rest_.find('\n');
        ended = end != std::string_view::npos;
        const std::string_view part = rest_.substr(0, end);
        rest_.remove_prefix(part.size() + (ended ? 1 : 0));
        // One more, which may be the CR of the line's end.
        if (line_.size() + part.size() > bounds_.Line + 1)
            return Fail(FileProblem::LineTooLong);
        line_ += part;
    }
    if (error_ || !any)
        return false;
    if (line_.ends_with('\r'))
        line_.pop_back();
    if (line_.size() > bounds_.Line)
        return Fail(FileProblem::LineTooLong);
    line = line_;
    return true;
}

std::error_code TextFileRoom::Take(std::string_view line) {
    constexpr std::size_t End = 2;
    taken_ += line.size() + End;
    if (line.size() > bounds_.Line)
        return FileProblem::LineTooLong;
    return taken_ > bounds_.File ? FileProblem::TooLarge : std::error_code{};
}
