// SPDX-License-Identifier: MIT
#pragma once

#include "base/RunTimeError.h"

#include <string_view>

// What a read reports to and asks of its caller. The window, the command-line tool and the tests each
// implement it.
class ReadingProgress {
  public:
    virtual ~ReadingProgress() = default;

    // How much of the file has been read: 0 to 100; 0 also when reading has ended.
    virtual void SetValue(double percent) = 0;

    // Called after every hundred stored entries, after every MiB of the file even without an entry, and
    // repeatedly while a read cannot end. An implementation may skip some of the calls.
    virtual void ProcessPendingEvents() = 0;

    // True when the read must end. Asked after each ProcessPendingEvents.
    virtual bool StopWanted() const = 0;

    // Whether a read waits to be stopped where the file ends within a register block. Otherwise it ends there
    // as at an error.
    virtual bool WaitsForBlockEnd() const { return true; }

    // Shows a message to confirm; `text` is UTF-8 and may hold "\r\n". Reading goes on when it returns.
    virtual void ShowMessage(std::string_view text) = 0;
};

// Lets pending events run. Throws RunTimeError when the read must end.
inline void LetEventsRun(ReadingProgress& progress) {
    progress.ProcessPendingEvents();
    if (progress.StopWanted())
        throw RunTimeError("the read was stopped");
}
