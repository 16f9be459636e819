// SPDX-License-Identifier: MIT
#include "support/OrdinaryUser.h"

#include <unistd.h>

namespace {
constexpr uid_t Nobody = 65534;
} // namespace

OrdinaryUser::OrdinaryUser() : before_(geteuid()), ordinary_(before_ != 0 || seteuid(Nobody) == 0) {}

OrdinaryUser::~OrdinaryUser() {
    if (seteuid(before_) != 0)
        _exit(1);
}
