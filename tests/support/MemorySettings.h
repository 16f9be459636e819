// SPDX-License-Identifier: MIT
#pragma once

#include "settings/TransientSettings.h"

// Settings that live in the test only. Counts its writes.
class MemorySettings : public TransientSettings {
  public:
    bool Change(const std::vector<SettingsChange>& changes) override {
        ++Writes;
        return TransientSettings::Change(changes);
    }

    int Writes = 0;
};
