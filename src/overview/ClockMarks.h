// SPDX-License-Identifier: MIT
#pragma once

#include "overview/TimelineScale.h"

#include <string>
#include <vector>

// A time below the timeline, and the pixel that it belongs to.
struct ClockMark {
    int Pixel;
    std::string Text; // "04.01.2010", "04.01. 12:45" or "12:45:02"

    bool operator==(const ClockMark&) const = default;
};

// The round times of the piece that is seen, at least `distance` pixels apart: whole days, or parts of an
// hour or a minute that divide it. Each part of the strip has its own.
std::vector<ClockMark> ClockMarksOf(const Timeline& strip, const TimelineScale& scale, int distance);
