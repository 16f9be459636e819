// SPDX-License-Identifier: MIT
#include "overview/TimelineScale.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;
using Place = TimelineScale::Place;

TimelineScale ScaleOf(Place length, int width) {
    TimelineScale scale;
    scale.SetWidth(width);
    scale.SetStrip(length);
    return scale;
}

} // namespace

TEST(TimelineScale, ShowsAllAtFirst) {
    const TimelineScale scale = ScaleOf(hours(1), 600);
    EXPECT_TRUE(scale.ShowsAll());
    EXPECT_EQ(scale.From(), Place(0));
    EXPECT_EQ(scale.To(), hours(1));
    EXPECT_EQ(scale.PixelOf(minutes(30)), 300);
    EXPECT_EQ(scale.PlaceAt(300), minutes(30));
}

TEST(TimelineScale, ZoomsAroundAPixel) {
    TimelineScale scale = ScaleOf(hours(1), 600);
    const Place place = scale.PlaceAt(150);
    scale.Zoom(0.5, 150);
    EXPECT_EQ(scale.To() - scale.From(), minutes(30));
    EXPECT_EQ(scale.PixelOf(place), 150);
    EXPECT_FALSE(scale.ShowsAll());
    for (int i = 0; i < 40; ++i)
        scale.Zoom(0.5, 300);
    EXPECT_EQ(scale.To() - scale.From(), TimelineScale::LeastSpan);
    for (int i = 0; i < 40; ++i)
        scale.Zoom(2, 599);
    EXPECT_TRUE(scale.ShowsAll());
    EXPECT_EQ(scale.From(), Place(0));
}

TEST(TimelineScale, StaysOnTheStrip) {
    TimelineScale scale = ScaleOf(hours(1), 600);
    scale.Move(100);
    EXPECT_EQ(scale.From(), Place(0));
    scale.Zoom(0.25, 0);
    scale.Move(-50);
    EXPECT_EQ(scale.From(), Place(0));
    scale.Move(100000);
    EXPECT_EQ(scale.To(), hours(1));
}

TEST(TimelineScale, MovesNoMoreThanNeededToShowAPlace) {
    TimelineScale scale = ScaleOf(hours(1), 600);
    scale.Zoom(0.1, 0);
    scale.EnsureVisible(minutes(3));
    EXPECT_EQ(scale.From(), Place(0));
    scale.EnsureVisible(minutes(30));
    EXPECT_EQ(scale.PixelOf(minutes(30)), 580);
    scale.EnsureVisible(minutes(10));
    EXPECT_EQ(scale.PixelOf(minutes(10)), 20);
    scale.EnsureVisible(hours(1));
    EXPECT_EQ(scale.To(), hours(1));
}

TEST(TimelineScale, AStripWithoutLengthIsSeenAsTheShortest) {
    const TimelineScale scale = ScaleOf(Place(0), 0);
    EXPECT_EQ(scale.Width(), 1);
    EXPECT_EQ(scale.To(), TimelineScale::LeastSpan);
    EXPECT_EQ(scale.PixelOf(Place(0)), 0);
}

// The place at a pixel's left edge is on that pixel, and the one before it is not.
TEST(TimelineScale, PlacesAndPixelsAgree) {
    std::mt19937 random(3);
    for (int round = 0; round < 2000; ++round) {
        TimelineScale scale =
            ScaleOf(Place(10'000 + random() % 1'000'000'000), 1 + static_cast<int>(random() % 2000));
        scale.Zoom(1.0 / static_cast<double>(1 + random() % 1000), static_cast<int>(random() % 100));
        const int pixel = static_cast<int>(random() % static_cast<unsigned>(scale.Width()));
        const Place place = scale.PlaceAt(pixel);
        // A pixel may be shorter than a millisecond.
        EXPECT_GE(scale.PixelOf(place), pixel);
        EXPECT_LT(scale.PixelOf(place - Place(1)), std::max(pixel, scale.PixelOf(place)));
    }
}
