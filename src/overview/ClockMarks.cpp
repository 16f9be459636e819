// SPDX-License-Identifier: MIT
#include "overview/ClockMarks.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

using namespace std::chrono_literals;

constexpr std::array<Timeline::Place, 18> Steps{1s, 5s, 10s, 30s, 1min, 5min, 10min,    30min,    1h,
                                                3h, 6h, 12h, 24h, 48h,  168h, 24h * 28, 24h * 91, 24h * 364};

Timeline::Place StepFor(const TimelineScale& scale, int distance) {
    const double pixel = static_cast<double>((scale.To() - scale.From()).count()) / scale.Width();
    for (const Timeline::Place step : Steps)
        if (static_cast<double>(step.count()) >= pixel * distance)
            return step;
    // A strip of centuries.
    const double years = pixel * distance / static_cast<double>(Steps.back().count());
    return Steps.back() * (static_cast<Timeline::Place::rep>(years) + 1);
}

std::string MarkText(Timeline::Time time, Timeline::Place step) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(time - day);
    std::array<char, 48> text{};
    const auto dayOfMonth = static_cast<unsigned>(date.day());
    const auto month = static_cast<unsigned>(date.month());
    if (step >= 24h)
        std::snprintf(text.data(), text.size(), "%02u.%02u.%04d", dayOfMonth, month,
                      static_cast<int>(date.year()));
    else if (step >= 1min)
        std::snprintf(text.data(), text.size(), "%02u.%02u. %02d:%02d", dayOfMonth, month,
                      static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()));
    else
        std::snprintf(text.data(), text.size(), "%02d:%02d:%02d", static_cast<int>(clock.hours().count()),
                      static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()));
    return text.data();
}

} // namespace

std::vector<ClockMark> ClockMarksOf(const Timeline& strip, const TimelineScale& scale, int distance) {
    std::vector<ClockMark> marks;
    const Timeline::Place step = StepFor(scale, distance);
    const std::span<const Timeline::Part> parts = strip.Parts();
    auto part =
        std::upper_bound(parts.begin(), parts.end(), scale.From(),
                         [](Timeline::Place place, const Timeline::Part& p) { return place < p.Offset; });
    if (part != parts.begin())
        --part;
    for (; part != parts.end() && part->Offset <= scale.To(); ++part) {
        const auto next = std::next(part);
        const Timeline::Place end = std::min(next == parts.end() ? strip.Length() : next->Offset, scale.To());
        const Timeline::Place begin = std::max(part->Offset, scale.From());
        // The first round time in the part.
        const Timeline::Place since = (part->Begin + (begin - part->Offset)).time_since_epoch();
        Timeline::Place round = since / step * step;
        if (round < since)
            round += step;
        for (; part->Offset + (round - part->Begin.time_since_epoch()) <= end; round += step) {
            const int pixel = scale.PixelOf(part->Offset + (round - part->Begin.time_since_epoch()));
            if (marks.empty() || pixel - marks.back().Pixel >= distance)
                marks.push_back({pixel, MarkText(Timeline::Time(round), step)});
        }
    }
    return marks;
}
