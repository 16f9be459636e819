// SPDX-License-Identifier: MIT
#include "base/Arguments.h"

#include <algorithm>

std::vector<std::string> Arguments(int argc, const char* const* argv) {
    return {argv + std::min(argc, 1), argv + argc};
}
