// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

struct PlainEntry {
    std::string event;
    std::string data; // continuation lines are joined with " | "
    std::string sender;
    std::string name;
    std::string time;
};

// The obvious way to read a logbook: line by line from a stream, five strings an entry. It cuts as the bare
// reader does, so the difference between the two is the cost of storing.
class PlainReader {
  public:
    // False when the file cannot be opened.
    bool Read(const std::string& path);

    const std::vector<PlainEntry>& Entries() const { return entries; }
    std::size_t Count() const { return entries.size(); }
    // The length of all fields together.
    std::uint64_t Checksum() const;

  private:
    std::vector<PlainEntry> entries;
};
