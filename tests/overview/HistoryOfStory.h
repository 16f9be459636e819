// SPDX-License-Identifier: MIT
#pragma once

#include "history/LogbookHistory.h"
#include "support/ReadText.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

// A logbook of two sessions with errors, and its complete history:
//
//     entry  0        1       2       3      4        5       6       7       8
//     time   08:00    08:10   08:20   09:00  10:00    10:10   10:20   10:30   12:00
//            start    P7      WARNING on     start    P7      P9      P7      on
class HistoryOfStory {
  public:
    explicit HistoryOfStory(const std::vector<std::string>& languageFolders = {}) {
        const auto at = [](const char* clock) { return std::string("20.11.2010 ") + clock; };
        ReadText(Lines({Header("RESET:", at("08:00:00")), Header("BERR:    P7 door", at("08:10:00")),
                        Header("WARNING: PLC COOLANT", at("08:20:00")), "  low",
                        Header("STIB:    On", at("09:00:00")), Header("RESET:", at("10:00:00")),
                        Header("BERR:    P7 door", at("10:10:00")), Header("BERR:    P9 air", at("10:20:00")),
                        Header("BERR:    P7 door", at("10:30:00")), Header("STIB:    On", at("12:00:00"))}),
                 result_);
        history_ = std::make_unique<LogbookHistory>(result_.Book, languageFolders);
        while (history_->Go()) {
        }
    }

    const LogbookHistory& History() const { return *history_; }
    EntryTable& Entries() { return result_.Book.Entries; }

    static EntrySet SetOf(std::initializer_list<EntryNumber> entries) {
        EntrySet set(9);
        for (const EntryNumber entry : entries)
            set.Add(entry);
        return set;
    }

  private:
    ReadResult result_;
    std::unique_ptr<LogbookHistory> history_;
};
