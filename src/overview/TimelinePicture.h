// SPDX-License-Identifier: MIT
#pragma once

#include "history/LogbookHistory.h"
#include "overview/TimelineScale.h"
#include "settings/Language.h"

#include <QPalette>
#include <QRect>

#include <array>
#include <cstdint>
#include <optional>

class QFontMetrics;
class QPainter;

// A piece of the strip of time.
struct TimelineSpan {
    Timeline::Place From;
    Timeline::Place To;

    bool operator==(const TimelineSpan&) const = default;
};

// What the timeline shows. The sets are of the logbook's entries.
struct TimelineContent {
    const LogbookHistory* History = nullptr; // complete, or none
    EntrySet Commented;
    EntrySet Highlighted;
    std::optional<TimelineSpan> ListShows; // the rows on the screen
    std::optional<TimelineSpan> Selected;  // with the mouse or the keys
    std::optional<Timeline::Place> Cursor;
};

enum class TimelineLane : std::uint8_t { Sessions, Errors, Warnings, Comments, Highlighted, Clock };

// Where the lanes of a timeline lie: their names at the left, and the strip.
struct TimelineLanes {
    static constexpr std::size_t Count = 6;

    int StripLeft = 0;
    int StripWidth = 1;
    std::array<QRect, Count> Rects; // of the strip, by lane

    const QRect& Of(TimelineLane lane) const { return Rects[static_cast<std::size_t>(lane)]; }
    int Height() const { return Rects.back().bottom() + 1; }
};

// The lanes of a timeline that is so many pixels wide, in letters of this font.
TimelineLanes LanesOf(const QFontMetrics& letters, int width, Language language);

// Each bar of errors, warnings and marks is so wide.
inline constexpr int TimelineBar = 3; // pixels

// Paints the piece that the scale shows, without what follows. Every lane has its own place and name, so
// nothing is told by colour alone. Costs some looks at entries a bar, whatever the length of the logbook.
void PaintTimeline(QPainter& painter, const TimelineContent& content, const TimelineScale& scale,
                   const TimelineLanes& lanes, const QPalette& palette, Language language);

// Paints on it what the list shows, the selected span and the cursor, which change often.
void PaintOnTimeline(QPainter& painter, const TimelineContent& content, const TimelineScale& scale,
                     const TimelineLanes& lanes, const QPalette& palette);
