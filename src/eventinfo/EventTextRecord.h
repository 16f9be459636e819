// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// What the control says about an event or error, UTF-8. Lines within a text are separated by EventTextBreak.
struct EventTextRecord {
    std::string Id; // of the text entry; only for coded events with a text file of their own
    std::string Message;
    std::string Cause;
    std::string Fix;
    std::string Reaction; // class of the event and the control's reaction; only with an Id

    bool operator==(const EventTextRecord&) const = default;
};

inline constexpr std::string_view EventTextBreak = "\r\n";
