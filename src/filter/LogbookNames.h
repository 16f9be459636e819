// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

class EntryKinds;

// The names and senders in a logbook, for the boxes of the filter definition: each once, without the empty
// one, sorted without regard to case.
struct LogbookNames {
    // A box with more does not help; the last ones in the order are left out.
    static constexpr std::size_t Most = 1000;

    std::vector<std::string> Names;
    std::vector<std::string> Senders;
};

// Reads the kinds of the entries, not the entries: some hundred, whatever the size of the logbook.
LogbookNames NamesInLogbook(const EntryKinds& kinds);
