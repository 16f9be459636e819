// SPDX-License-Identifier: MIT
#pragma once

#include "base/RunTimeError.h"

#include <string_view>

// What reading a logbook tells and asks its surroundings. The window, the command-line tool and the tests
// each implement it.
class ReadingProgress {
  public:
    virtual ~ReadingProgress() = default;

    // How much of the file has been read: 0 to 100; 0 also when reading has ended.
    virtual void SetValue(double percent) = 0;

    // Called after every hundred stored entries, after every MiB of the file, whether or not that gave an
    // entry, and again and again while a read cannot end. An implementation that finds the call too frequent
    // may pass over some.
    virtual void ProcessPendingEvents() = 0;

    // True when the read shall end. Asked after each ProcessPendingEvents.
    virtual bool StopWanted() const = 0;

    // A message to confirm; `text` is UTF-8 and may hold "\r\n". Reading goes on when it returns.
    virtual void ShowMessage(std::string_view text) = 0;
};

// Lets pending events run. Throws RunTimeError when the read shall end.
inline void LetEventsRun(ReadingProgress& progress) {
    progress.ProcessPendingEvents();
    if (progress.StopWanted())
        throw RunTimeError("the read was stopped");
}
