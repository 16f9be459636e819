// SPDX-License-Identifier: MIT
#pragma once

#include "settings/SettingsStore.h"

#include <memory>

// The settings as this system keeps them, in a place of the test's own that is empty at first.
class TestStore {
  public:
    TestStore();
    ~TestStore();
    TestStore(const TestStore&) = delete;
    TestStore& operator=(const TestStore&) = delete;

    SettingsStore& Store() const;
    bool IsMade() const; // whether anything is there

  private:
    struct Place;
    std::unique_ptr<Place> place_;
};
