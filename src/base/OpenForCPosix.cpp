// SPDX-License-Identifier: MIT
#include "base/OpenForC.h"

std::FILE* OpenForC(const std::filesystem::path& file) { return std::fopen(file.c_str(), "rb"); }
