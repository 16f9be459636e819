// SPDX-License-Identifier: MIT
#pragma once

#include "base/LineBreak.h"
#include "logbook/ReadingProgress.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// Reads a logbook file line by line, reports how far it has come, and can return to a saved position.
//
// An object reads one file: it is new, then open, then closed. Reading, rewinding, saving and restoring are
// valid only while it is open. Sizes and positions are in bytes.
//
// CloseFile, SavePosition with RestoreSavedPosition, LinesRead and BufferLeft are for a reader that closes
// its file early, reads on before it knows what a line is, or counts lines. The parsers here do not need
// them: they look ahead with NextLineStart.
//
// The reading position moves through the file in chunks of BufferSize bytes; CurrentPosition counts in them.
// Within, the class asks the system for larger blocks.
class clsFile {
  public:
    static constexpr int ChunkSize = 2048;
    static constexpr std::size_t DefaultBlockSize = 256U * 1024U;
    static constexpr std::int64_t EventStep = 1024 * 1024;

    // What OpenFile does with a file without bytes.
    enum class IfEmpty : std::uint8_t { Close, StayOpen };

    explicit clsFile(std::size_t blockSize = DefaultBlockSize);

    // The file's size, taken once at opening.
    std::int64_t FileSize() const { return FileLength; }

    // One more than the number of consumed bytes, plus BufferSize. It is deliberately a chunk ahead, so that
    // it passes the file's size while the last chunk is still being read.
    std::int64_t CurrentPosition() const { return Position() + 1 + BufferSize(); }

    // Opens a regular file. False, without a message, when the file is missing or cannot be read, when it is
    // empty and `ifEmpty` closes it, or when this object has been used before.
    bool OpenFile(const std::string& path, IfEmpty ifEmpty);

    // From now on pending events run after each further EventStep bytes of the file, however long a line is.
    // When `progress` then wants to stop, the read throws RunTimeError. `progress` must live until reading is
    // over.
    void TellProgress(ReadingProgress& progress) { Progress = &progress; }

    void CloseFile();

    // Back to the first byte. The chunk size stays as it is: after a whole read it is that of the last chunk.
    void RewindFile();

    // SavePosition remembers one position, and RestoreSavedPosition returns to it as often as called.
    // LinesRead is not set back.
    void SavePosition() { Saved = CurrentPlace(); }
    void RestoreSavedPosition() { GoTo(Saved); }

    bool EndOfFile() const { return FileLeft() == 0; }

    // The next line without its LF; a CR is dropped wherever it stands. One byte is one character. False only
    // when the file is exhausted and the line is empty. `line` stays valid until ReleaseLines. Throws
    // RunTimeError when the file has become shorter or fails, and when the read shall end.
    bool ReadLine(std::string_view& line) {
        BlockHasKeptLines = true;
        return ReadLineWithin(line) ? !line.empty() || !EndOfFile() : ReadKeptLineAcrossBlocks(line);
    }

    // The same for a line that the caller uses at once: it is valid only until the next call of any
    // operation, and keeps no memory.
    bool ReadPassingLine(std::string_view& line);

    // The first character of the line that ReadLine would give next, if the block holds it; nullptr for an
    // empty line, at the end of the block and at the end of the file.
    const char* NextAtHand() const {
        const char* const next = Block.get() + Cursor;
        return Cursor < BlockLength && *next != '\n' && *next != '\r' ? next : nullptr;
    }

    // The first two characters of the line that ReadLine would give next, fewer for a shorter line, "" at the
    // end of the file. Consumes nothing. Validity and exceptions are as for ReadLine.
    std::string_view NextLineStart();

    // True when some memory is kept only for lines that the caller has read.
    bool KeepsLines() const { return HasKeptMemory; }

    // Ends the life of all lines that the caller has read, and gives their memory back.
    void ReleaseLines();

    // Line ends consumed since the object was made; never set back.
    std::int64_t LinesRead() const { return LinesReadCount; }

    // The size of the current chunk, and its bytes that are not yet consumed.
    int BufferSize() const;
    int BufferLeft() const;

    // Bytes of the file that are not yet consumed.
    std::int64_t FileLeft() const { return FileLength - Position(); }

  private:
    struct Place {
        std::int64_t Position = 0;
        int PassChunkSize = ChunkSize;
    };

    std::int64_t Position() const { return BlockBegin + static_cast<std::int64_t>(Cursor); }
    Place CurrentPlace() const { return {Position(), PassChunkSize}; }
    void GoTo(const Place& place);
    bool ReadBlock();
    void ReplaceBlock(std::int64_t begin);
    bool ReadLineWithin(std::string_view& line);
    bool ReadKeptLineAcrossBlocks(std::string_view& line);
    bool ReadLineAcrossBlocks(std::string& text, std::string_view& line);

    std::filebuf File;
    bool Used = false;
    std::int64_t FileLength = 0;
    std::int64_t LinesReadCount = 0;
    int PassChunkSize = ChunkSize; // of this pass through the file; its last chunk may be shorter
    Place Saved;
    ReadingProgress* Progress = nullptr; // from TellProgress
    std::int64_t BytesSinceEvents = 0;

    using BlockMemory = std::unique_ptr<char[]>;
    BlockMemory NewBlock() const;

    std::size_t BlockSize;
    BlockMemory Block;           // the last bytes from the system, a line feed as a sentinel, and padding
    std::size_t BlockLength = 0; // without sentinel and padding
    std::int64_t BlockBegin = 0; // the block's place in the file
    std::size_t Cursor = 0;      // the next byte to consume, from the block's start

    bool HasKeptMemory = false;          // KeptBlocks or LinesAcrossBlocks have any
    bool BlockHasKeptLines = false;      // lines read and not released lie in this block
    std::vector<BlockMemory> KeptBlocks; // earlier blocks with such lines
    BlockMemory SpareBlock;
    std::deque<std::string> LinesAcrossBlocks; // lines that do not lie whole in one block
    std::string PassingLineAcrossBlocks;
};

// Reads the line if it lies whole in this block; otherwise consumes nothing.
inline bool clsFile::ReadLineWithin(std::string_view& line) {
    const char* const begin = Block.get() + Cursor;
    const char* const limit = Block.get() + BlockLength;
    const char* const lineBreak = FindLineBreak(begin);
    const char* const lineFeed = lineBreak + (*lineBreak == '\r' ? 1 : 0);
    if (lineFeed >= limit || *lineFeed != '\n')
        return false;
    line = {begin, static_cast<std::size_t>(lineBreak - begin)};
    Cursor = static_cast<std::size_t>(lineFeed + 1 - Block.get());
    ++LinesReadCount;
    return true;
}
