// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Both yardsticks cut a header line at fixed columns, whatever the line says.

// An entry takes about this many bytes of a file; the bare reader reserves its list by it.
inline constexpr std::size_t BytesPerEntry = 80;

struct HeaderFields {
    std::string_view event;
    std::string_view sender;
    std::string_view name;
    std::string_view text; // everything from column 10 on
    std::string_view time;
};

inline std::string_view WithoutReturn(std::string_view line) {
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

inline std::string_view WithoutIndent(std::string_view line) {
    return line.substr(std::min(line.find_first_not_of(' '), line.size()));
}

inline bool IsHeading(std::string_view line) { return line.starts_with("Operation Logbook Version"); }

inline HeaderFields CutHeader(std::string_view header) {
    constexpr std::size_t TextStart = 9;
    constexpr std::size_t FieldLength = 23; // columns 10 to 32
    constexpr std::size_t TimeLength = 23;

    HeaderFields fields;
    fields.event = header.substr(0, header.find(':'));
    fields.text = header.substr(std::min(TextStart, header.size()));
    const std::string_view field = fields.text.substr(0, FieldLength);
    const std::size_t blank = std::min(field.find(' '), field.size());
    fields.sender = field.substr(0, blank);
    const std::string_view rest = field.substr(std::min(blank + 1, field.size()));
    fields.name = rest.substr(0, rest.find(' '));
    fields.time = header.substr(header.size() - std::min(TimeLength, header.size()));
    return fields;
}

// The five fields of an entry, as in the file.
struct BareEntry {
    std::string_view event;
    std::string_view data;
    std::string_view sender;
    std::string_view name;
    std::string_view time;
};

// The least work that still gives a list: maps the file, finds lines and cuts them at fixed columns, but
// decodes, joins and copies nothing. A full reader can be measured against it.
class BareReader {
  public:
    BareReader() = default;
    ~BareReader() { Close(); }
    BareReader(const BareReader&) = delete;
    BareReader& operator=(const BareReader&) = delete;

    // Whether the list gets its room at once, by a guess from the file's size, or grows by doubling, as when
    // the number of entries is unknown.
    enum class Room { Grows, Reserved };

    // False when the file cannot be mapped. The entries stay valid until the next call.
    bool Read(const std::string& path, Room room);
    void Close();

    const std::vector<BareEntry>& Entries() const { return entries; }
    std::size_t Count() const { return entries.size(); }
    // The length of all fields together.
    std::uint64_t Checksum() const { return checksum; }

  private:
    bool Map(const std::string& path);
    void ReadEntries(std::string_view text, Room room);

    std::vector<BareEntry> entries;
    std::uint64_t checksum = 0;
    void* mapped = nullptr;
    std::size_t mappedSize = 0;
};
