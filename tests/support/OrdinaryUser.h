// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

// While one lives, permissions apply to the test: one that runs as root becomes "nobody".
class OrdinaryUser {
  public:
    OrdinaryUser() : before_(geteuid()), ordinary_(before_ != 0 || seteuid(Nobody) == 0) {}
    ~OrdinaryUser() {
        if (seteuid(before_) != 0)
            _exit(1);
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    bool IsOrdinary() const { return ordinary_; }

  private:
    static constexpr uid_t Nobody = 65534;

    uid_t before_;
    bool ordinary_;
};
