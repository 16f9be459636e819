// SPDX-License-Identifier: MIT
#pragma once

#include "base/StopRequest.h"
#include "cli/Messages.h"
#include "logbook/ReadingProgress.h"

#include <string>

// Reading on a terminal: silent, ended by a signal, messages go to standard error.
class TerminalProgress : public ReadingProgress {
  public:
    void SetValue(double) override {}
    void ProcessPendingEvents() override {}
    bool StopWanted() const override { return StopRequest::IsMade(); }

    void ShowMessage(std::string_view text) override {
        std::string lines(text);
        std::erase(lines, '\r');
        TellMessage(lines, "\n");
    }
};
