// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

// While one lives, no file of this process grows beyond a size: a write beyond it fails as on a full disk,
// for the reason "File too large". Only after NEEDS_FILE_SIZE_LIMIT.
class SmallFiles {
  public:
    explicit SmallFiles(std::uintmax_t bytes);
    ~SmallFiles();
    SmallFiles(const SmallFiles&) = delete;
    SmallFiles& operator=(const SmallFiles&) = delete;

  private:
    void (*handler_)(int) = nullptr;
    std::uintmax_t before_ = 0;
};
