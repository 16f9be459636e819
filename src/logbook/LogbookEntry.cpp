// SPDX-License-Identifier: MIT
#include "logbook/LogbookEntry.h"

#include <array>
#include <cstddef>

namespace {
constexpr std::array<std::string_view, 10> EventTypeNames{"",       "Info", "Warning", "Error", "Fatal",
                                                          "Status", "Key",  "Restart", "",      "Keystr"};
}

std::string_view EventTypeName(std::int16_t eventType) {
    return EventTypeNames[static_cast<std::size_t>(eventType)];
}
