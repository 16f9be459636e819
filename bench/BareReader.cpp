// SPDX-License-Identifier: MIT
#include "bench/BareReader.h"

#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const char* EndOfLine(const char* line, const char* end) {
    const void* found = std::memchr(line, '\n', static_cast<std::size_t>(end - line));
    return found == nullptr ? end : static_cast<const char*>(found);
}

const char* NextLine(const char* lineEnd, const char* end) { return lineEnd == end ? end : lineEnd + 1; }

// The text from `begin` to a line end, without the CR.
std::string_view TextTo(const char* begin, const char* lineEnd) {
    return WithoutReturn({begin, static_cast<std::size_t>(lineEnd - begin)});
}

} // namespace

bool BareReader::Read(const std::string& path, Room room) {
    Close();
    if (!Map(path))
        return false;
    ReadEntries({static_cast<const char*>(mapped), mappedSize}, room);
    return true;
}

void BareReader::Close() {
    if (mapped != nullptr)
        munmap(mapped, mappedSize);
    mapped = nullptr;
    mappedSize = 0;
    checksum = 0;
    entries = {};
}

bool BareReader::Map(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    struct stat status {};
    void* address = MAP_FAILED;
    if (fstat(file, &status) == 0 && status.st_size > 0)
        address = mmap(nullptr, static_cast<std::size_t>(status.st_size), PROT_READ, MAP_PRIVATE, file, 0);
    close(file);
    if (address == MAP_FAILED)
        return false;
    mapped = address;
    mappedSize = static_cast<std::size_t>(status.st_size);
    madvise(mapped, mappedSize, MADV_SEQUENTIAL);
    return true;
}

void BareReader::ReadEntries(std::string_view text, Room room) {
    if (room == Room::Reserved)
        entries.reserve(text.size() / BytesPerEntry);
    const char* const end = text.data() + text.size();
    const char* line = text.data();
    while (line != end) {
        const char* lineEnd = EndOfLine(line, end);
        const std::string_view header = TextTo(line, lineEnd);
        line = NextLine(lineEnd, end);
        if (IsHeading(header))
            continue;

        BareEntry entry;
        const HeaderFields fields = CutHeader(header);
        entry.event = fields.event;
        entry.sender = fields.sender;
        entry.name = fields.name;
        entry.time = fields.time;
        entry.data = fields.text;
        if (line != end && *line == ' ') {
            const char* const block = line;
            while (line != end && *line == ' ') {
                lineEnd = EndOfLine(line, end);
                line = NextLine(lineEnd, end);
            }
            entry.data = WithoutIndent(TextTo(block, lineEnd));
        }
        checksum += entry.event.size() + entry.data.size() + entry.sender.size() + entry.name.size() +
                    entry.time.size();
        entries.push_back(entry);
    }
}
