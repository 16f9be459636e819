// SPDX-License-Identifier: MIT
#include "logbook/clsFile.h"

#include "base/Paths.h"
#include "base/RunTimeError.h"

#include <algorithm>
#include <filesystem>

clsFile::clsFile(std::size_t blockSize) : BlockSize(std::max<std::size_t>(blockSize, 1)), Block(NewBlock()) {}

clsFile::BlockMemory clsFile::NewBlock() const {
    // Zeroed once, so that FindLineBreak never reads undefined bytes behind a block.
    BlockMemory block = std::make_unique<char[]>(BlockSize + 1 + LineBreakOverrun);
    block[0] = '\n';
    return block;
}

void clsFile::ReleaseLines() {
    if (!KeptBlocks.empty())
        SpareBlock = std::move(KeptBlocks.back());
    KeptBlocks.clear();
    LinesAcrossBlocks.clear();
    HasKeptMemory = false;
    BlockHasKeptLines = false;
}

bool clsFile::OpenFile(const std::string& path, IfEmpty ifEmpty) {
    if (Used)
        return false;
    Used = true;

    const std::filesystem::path file = ToPath(path);
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error))
        return false;
    // The block is the buffer; a buffer of the library would only copy the bytes once more.
    File.pubsetbuf(nullptr, 0);
    if (File.open(file, std::ios::in | std::ios::binary) == nullptr)
        return false;
    const std::streamoff end = File.pubseekoff(0, std::ios::end);
    if (end < 0 || (end == 0 && ifEmpty == IfEmpty::Close) || File.pubseekpos(0) != std::streampos(0)) {
        File.close();
        return false;
    }
    FileLength = end;
    return true;
}

void clsFile::CloseFile() { File.close(); }

void clsFile::RewindFile() { GoTo({0, BufferSize()}); }

int clsFile::BufferSize() const {
    const std::int64_t consumed = Position();
    if (consumed == 0)
        return PassChunkSize;
    const std::int64_t chunkBegin = (consumed - 1) / PassChunkSize * PassChunkSize;
    return static_cast<int>(std::min<std::int64_t>(PassChunkSize, FileLength - chunkBegin));
}

int clsFile::BufferLeft() const {
    const std::int64_t consumed = Position();
    if (consumed == 0)
        return 0;
    const std::int64_t chunkBegin = (consumed - 1) / PassChunkSize * PassChunkSize;
    return static_cast<int>(chunkBegin + BufferSize() - consumed);
}

void clsFile::GoTo(const Place& place) {
    PassChunkSize = place.PassChunkSize;
    const std::int64_t inBlock = place.Position - BlockBegin;
    if (inBlock >= 0 && inBlock <= static_cast<std::int64_t>(BlockLength)) {
        Cursor = static_cast<std::size_t>(inBlock);
        return;
    }
    File.pubseekpos(place.Position);
    ReplaceBlock(place.Position);
}

// Replaces this block by an empty one; the old block's lines stay where they are.
void clsFile::ReplaceBlock(std::int64_t begin) {
    if (BlockHasKeptLines && BlockLength != 0) {
        KeptBlocks.push_back(std::move(Block));
        HasKeptMemory = true;
        Block = SpareBlock ? std::move(SpareBlock) : NewBlock();
    }
    BlockHasKeptLines = false;
    BlockBegin = begin;
    BlockLength = 0;
    Cursor = 0;
    Block[0] = '\n';
}

// The next block, once the cursor stands at the end of this one. False at the end of the file.
bool clsFile::ReadBlock() {
    ReplaceBlock(BlockBegin + static_cast<std::int64_t>(BlockLength));
    const std::int64_t wanted = std::min(static_cast<std::int64_t>(BlockSize), FileLength - BlockBegin);
    if (wanted <= 0)
        return false;
    std::streamsize got = 0;
    try {
        got = File.sgetn(Block.get(), wanted);
    } catch (const std::ios_base::failure& failure) {
        throw RunTimeError(failure.what());
    }
    if (got != wanted)
        throw RunTimeError("the file has become shorter while it was read");
    BlockLength = static_cast<std::size_t>(got);
    Block[BlockLength] = '\n';
    BytesSinceEvents += got;
    if (Progress != nullptr && BytesSinceEvents >= EventStep) {
        BytesSinceEvents = 0;
        LetEventsRun(*Progress);
    }
    return true;
}

bool clsFile::ReadKeptLineAcrossBlocks(std::string_view& line) {
    HasKeptMemory = true;
    return ReadLineAcrossBlocks(LinesAcrossBlocks.emplace_back(), line);
}

bool clsFile::ReadPassingLine(std::string_view& line) {
    if (ReadLineWithin(line))
        return !line.empty() || !EndOfFile();
    PassingLineAcrossBlocks.clear();
    return ReadLineAcrossBlocks(PassingLineAcrossBlocks, line);
}

// A line that lies in several blocks, or has a CR without an LF behind it, is put together in a text of its
// own.
bool clsFile::ReadLineAcrossBlocks(std::string& text, std::string_view& line) {
    while (Cursor < BlockLength || ReadBlock()) {
        const char* const begin = Block.get() + Cursor;
        const char* const lineBreak = FindLineBreak(begin);
        text.append(begin, lineBreak);
        Cursor = static_cast<std::size_t>(lineBreak - Block.get());
        if (Cursor == BlockLength)
            continue;
        ++Cursor;
        if (*lineBreak == '\n') {
            ++LinesReadCount;
            break;
        }
    }
    line = text;
    return !line.empty() || !EndOfFile();
}

std::string_view clsFile::NextLineStart() {
    constexpr std::size_t Wanted = 2;
    const char* const next = Block.get() + Cursor;
    const std::size_t left = BlockLength - Cursor;
    const auto isBreak = [](char c) { return c == '\n' || c == '\r'; };
    if (left >= Wanted && !isBreak(next[0]) && !isBreak(next[1]))
        return {next, Wanted};
    if (left >= Wanted && (next[0] == '\n' || (next[0] == '\r' && next[1] == '\n')))
        return {};

    const Place here = CurrentPlace();
    const std::int64_t linesRead = LinesReadCount;
    std::string_view line;
    ReadLine(line);
    GoTo(here);
    LinesReadCount = linesRead;
    return line.substr(0, Wanted);
}
