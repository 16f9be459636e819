// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>

// While one lives, no file of this process grows beyond a size: a write beyond it fails as on a full disk,
// for the reason "File too large".
class SmallFiles {
  public:
    explicit SmallFiles(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &before_), 0);
        const rlimit limit{bytes, before_.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~SmallFiles() {
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &before_), 0);
        std::signal(SIGXFSZ, handler_);
    }
    SmallFiles(const SmallFiles&) = delete;
    SmallFiles& operator=(const SmallFiles&) = delete;

  private:
    void (*handler_)(int);
    rlimit before_{};
};
