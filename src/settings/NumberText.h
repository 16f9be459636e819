// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <cstdint>
#include <string>

// A number whose digits stand in groups of three: "1,204", in German "1.204".
std::string GroupedText(std::uint64_t number, Language language);
