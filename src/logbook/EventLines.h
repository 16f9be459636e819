// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/JoinedLines.h"
#include "logbook/KnownHeaders.h"
#include "logbook/ParsedEntry.h"
#include "logbook/clsFile.h"
#include "logbook/modUtil.h"

#include <string_view>

// The column rules that the generations of the logbook share: an event's first line begins with a keyword and
// ends with the time stamp, and message lines may follow it. Columns count from 1. These functions throw
// RunTimeError for a line that is too short for its rules.

// The sender and name of an event stand in columns 10 to 32; the first blank separates them. Either may be
// "".
struct HeaderFields {
    std::string_view Sender;
    std::string_view Name;
};
HeaderFields SplitHeader(std::string_view line);

// The text of a one-line event: from column 10 to the stamp, which is 23 characters long when a "." stands
// three characters before its end (milliseconds), and up to 20 otherwise.
std::string_view ClassicData(std::string_view line);

// The stamp at the end of the line, exactly as it stands there: 23, 20 or 19 characters.
std::string_view ClassicTime(std::string_view line);

// The reporter by the first letter of a message: "PLC" for P, "PYTHON" for Y, otherwise "MAIN".
std::string_view SenderFromData(std::string_view data);

// True when the next line is a continuation: it begins with a blank or is empty. Consumes nothing.
inline bool IsContinuationNext(clsFile& file) {
    if (const char* const next = file.NextAtHand(); next != nullptr)
        return *next == Blank;
    if (file.EndOfFile())
        return false;
    const std::string_view start = file.NextLineStart();
    return start.empty() || start.front() == Blank;
}

// Fills Sender and Name from the header `line`; a `reporter` replaces the sender.
void ReadHeader(std::string_view line, ParsedEntry& entry, KnownHeaders& headers,
                std::string_view reporter = {});

// Does ReadHeader, and reads the message below the header as Data.
void ReadEventBody(std::string_view line, ParsedEntry& entry, clsFile& file, KnownHeaders& headers);

// The part of ReadEventBody for the message. Continuation lines are joined with LineSeparator, which then
// also ends the text; the list shows it so.
void ReadMessage(ParsedEntry& entry, clsFile& file);

// Reads the next line as the event's data.
void ReadDataLine(ParsedEntry& entry, clsFile& file);

// Finishes every info event: sets the icons of remote debugging and shortens its dumps, and sets the icon of
// a cleared error.
void InfoFinish(ParsedEntry& entry);
