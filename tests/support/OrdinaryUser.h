// SPDX-License-Identifier: MIT
#pragma once

// While one lives, permissions apply to the test: one that runs as root becomes "nobody". Only after
// NEEDS_PERMISSIONS.
class OrdinaryUser {
  public:
    OrdinaryUser();
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    bool IsOrdinary() const { return ordinary_; }

  private:
    unsigned before_ = 0;
    bool ordinary_ = false;
};
