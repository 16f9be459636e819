// SPDX-License-Identifier: MIT
#pragma once

#include "history/Timeline.h"

// Which piece of a strip of time is seen, and at which pixels. A piece is never shorter than LeastSpan, and
// lies on the strip as far as that is long enough.
class TimelineScale {
  public:
    using Place = Timeline::Place;

    static constexpr Place LeastSpan = std::chrono::seconds(2);

    // A strip of this length, all of which is then seen.
    void SetStrip(Place length);

    // The pixels that it is seen on, at least 1. The piece stays.
    void SetWidth(int pixels);
    int Width() const { return width_; }

    Place From() const { return Place(static_cast<Place::rep>(from_)); }
    Place To() const { return Place(static_cast<Place::rep>(from_ + span_)); }
    bool ShowsAll() const { return span_ >= static_cast<double>(Longest().count()); }

    // The pixel of a place, which may lie beside the seen ones, and the place at the left edge of a pixel.
    int PixelOf(Place place) const;
    Place PlaceAt(int pixel) const;

    // Shows a piece that is `factor` times as long; the place at `pixel` stays there.
    void Zoom(double factor, int pixel);

    // Shows what lies so many pixels further on.
    void Move(int pixels);

    void ShowAll();

    // Moves the piece as little as needed to show a place with some pixels around it.
    void EnsureVisible(Place place);

  private:
    Place Longest() const { return std::max(length_, LeastSpan); }
    void Bound();

    Place length_{0};
    int width_ = 1;
    double from_ = 0; // milliseconds, both
    double span_ = static_cast<double>(LeastSpan.count());
};
