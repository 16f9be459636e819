// SPDX-License-Identifier: MIT
// What the system lacks: the tests that need it are skipped (Abilities.h), and these say so if one is not.
#include "support/LittleMemory.h"
#include "support/OrdinaryUser.h"
#include "support/SmallFiles.h"

#include <gtest/gtest.h>

OrdinaryUser::OrdinaryUser() { ADD_FAILURE() << "permissions cannot be tested here"; }
OrdinaryUser::~OrdinaryUser() = default;

SmallFiles::SmallFiles(std::uintmax_t) { ADD_FAILURE() << "files have no limit here"; }
SmallFiles::~SmallFiles() = default;

bool HoldsWithLittleMemory(std::size_t, const std::function<bool()>&) {
    ADD_FAILURE() << "memory has no limit here";
    return false;
}
