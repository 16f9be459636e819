// SPDX-License-Identifier: MIT
#include "support/SmallFiles.h"

#include <gtest/gtest.h>

#include <csignal>
#include <utility>

#include <sys/resource.h>

namespace {

// Returns the limit before.
rlim_t Limit(rlim_t bytes) {
    rlimit limit{};
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlim_t before = std::exchange(limit.rlim_cur, bytes);
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    return before;
}

} // namespace

SmallFiles::SmallFiles(std::uintmax_t bytes)
    : handler_(std::signal(SIGXFSZ, SIG_IGN)), before_(Limit(bytes)) {}

SmallFiles::~SmallFiles() {
    Limit(before_);
    std::signal(SIGXFSZ, handler_);
}
