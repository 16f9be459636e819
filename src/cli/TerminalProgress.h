// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/ReadingProgress.h"

#include <iostream>

// Reading on a terminal: silent, interrupted by the terminal's own means, messages go to standard error.
class TerminalProgress : public ReadingProgress {
  public:
    void SetValue(double) override {}
    void ProcessPendingEvents() override {}
    bool StopWanted() const override { return false; }

    void ShowMessage(std::string_view text) override {
        std::cerr << "qorvix-cli: ";
        for (const char c : text)
            if (c != '\r')
                std::cerr << c;
        std::cerr << std::endl;
    }
};
