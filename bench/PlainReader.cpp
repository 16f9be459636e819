// SPDX-License-Identifier: MIT
#include "bench/PlainReader.h"

#include "bench/BareReader.h"

#include <fstream>
#include <string_view>

namespace {

PlainEntry MakeEntry(std::string_view header) {
    const HeaderFields fields = CutHeader(header);
    PlainEntry entry;
    entry.event = fields.event;
    entry.data = fields.text;
    entry.sender = fields.sender;
    entry.name = fields.name;
    entry.time = fields.time;
    return entry;
}

void AddLine(PlainEntry& entry, std::string_view line, bool first) {
    if (first)
        entry.data.clear();
    else
        entry.data += " | ";
    entry.data += WithoutIndent(line);
}

} // namespace

bool PlainReader::Read(const std::string& path) {
    entries = {};
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return false;
    bool first = true; // no continuation line of the last entry has been read yet
    std::string line;
    while (std::getline(file, line)) {
        const std::string_view text = WithoutReturn(line);
        if (IsHeading(text))
            continue;
        if (text.starts_with(' ') && !entries.empty()) {
            AddLine(entries.back(), text, first);
            first = false;
        } else {
            entries.push_back(MakeEntry(text));
            first = true;
        }
    }
    return true;
}

std::uint64_t PlainReader::Checksum() const {
    std::uint64_t sum = 0;
    for (const PlainEntry& entry : entries)
        sum += entry.event.size() + entry.data.size() + entry.sender.size() + entry.name.size() +
               entry.time.size();
    return sum;
}
