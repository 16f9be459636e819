// SPDX-License-Identifier: MIT
#include "overview/TimelineScale.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr int Margin = 20; // pixels around a place that is to be seen
} // namespace

void TimelineScale::SetStrip(Place length) {
    length_ = length;
    ShowAll();
}

void TimelineScale::SetWidth(int pixels) { width_ = std::max(pixels, 1); }

int TimelineScale::PixelOf(Place place) const {
    const double pixel = (static_cast<double>(place.count()) - from_) / span_ * width_;
    return static_cast<int>(std::floor(std::clamp(pixel, -1e6, 1e6)));
}

TimelineScale::Place TimelineScale::PlaceAt(int pixel) const {
    const double place = from_ + span_ * pixel / width_;
    return Place(static_cast<Place::rep>(std::ceil(place)));
}

void TimelineScale::Zoom(double factor, int pixel) {
    const double share = static_cast<double>(pixel) / width_;
    const double place = from_ + span_ * share;
    span_ = std::clamp(span_ * factor, static_cast<double>(LeastSpan.count()),
                       static_cast<double>(Longest().count()));
    from_ = place - span_ * share;
    Bound();
}

void TimelineScale::Move(int pixels) {
    from_ += span_ * pixels / width_;
    Bound();
}

void TimelineScale::ShowAll() {
    from_ = 0;
    span_ = static_cast<double>(Longest().count());
}

void TimelineScale::EnsureVisible(Place place) {
    const int pixel = PixelOf(place);
    const int margin = std::min(Margin, width_ / 3);
    if (pixel < margin)
        Move(pixel - margin);
    else if (pixel > width_ - margin)
        Move(pixel - (width_ - margin));
}

void TimelineScale::Bound() {
    from_ = std::clamp(from_, 0.0, std::max(0.0, static_cast<double>(Longest().count()) - span_));
}
