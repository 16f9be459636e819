// SPDX-License-Identifier: MIT
#include "base/OpenForC.h"

std::FILE* OpenForC(const std::filesystem::path& file) { return ::_wfopen(file.c_str(), L"rb"); }
