// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/Logbook.h"
#include "logbook/ReadingProgress.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Records what a read reports, and can stop it.
class RecordingProgress : public ReadingProgress {
  public:
    void SetValue(double percent) override { Values.push_back(percent); }
    void ProcessPendingEvents() override { ++EventRounds; }
    bool StopWanted() const override { return EventRounds >= StopAfterRounds; }
    void ShowMessage(std::string_view text) override { Messages.emplace_back(text); }

    std::vector<double> Values;
    std::vector<std::string> Messages;
    int EventRounds = 0;
    int StopAfterRounds = 1 << 30;
};

// The result of a read.
struct ReadResult {
    bool Read = false;
    Logbook Book;
    std::string Title;
    RecordingProgress Progress;
};

// Reads a logbook with this text (one byte a character), in Windows-1252.
void ReadText(std::string_view text, ReadResult& result);

// The entries of a logbook with this text, one a line: "type image [sender] [name] [time] data". If an error
// ended the read, the last line is "error" with the load state.
std::string EntriesOf(std::string_view text);

std::string Dump(const EntryTable& entries);

// A first line of an event: `text` padded with blanks, and a stamp from column 50 on.
std::string Header(std::string_view text, std::string_view stamp = "04.01.2010 12:34:56.789");

// The lines, each ended by CR LF.
std::string Lines(const std::vector<std::string>& lines);
