// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

// Which entries of a logbook begin at which places of its file, in bytes. All of it reads the logbook as the
// list does, keeps no entries, and gives up silently where an error ends the read or the process has been
// asked to end.

// The places of the first `most` entries, fewer where there are fewer.
std::vector<std::uint64_t> PlacesOfFirstEntries(const std::string& logbook, std::size_t most);

// The places of the entries with these numbers, which ascend; nothing for one that there is not.
std::vector<std::optional<std::uint64_t>> PlacesOfEntries(const std::string& logbook,
                                                          std::span<const std::int64_t> numbers);

// What is known of a place.
struct EntryAtPlace {
    std::int64_t Number = 0;  // of the first entry that begins at the place or behind it
    bool IsBeginning = false; // it begins there
};

// For places that ascend; nothing for one that the read did not reach. Reads only as far as needed.
std::vector<std::optional<EntryAtPlace>> EntriesAt(const std::string& logbook,
                                                   std::span<const std::uint64_t> places);
