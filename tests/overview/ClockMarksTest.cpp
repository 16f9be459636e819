// SPDX-License-Identifier: MIT
#include "overview/ClockMarks.h"

#include "support/ReadText.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using std::chrono::minutes;
using std::chrono::seconds;

// The strip of a logbook with these stamps.
class MarkedStrip {
  public:
    explicit MarkedStrip(const std::vector<std::string>& stamps) {
        std::vector<std::string> lines;
        for (const std::string& stamp : stamps)
            lines.push_back(Header("STIB:    On", stamp));
        ReadText(Lines(lines), result_);
        strip_ = std::make_unique<Timeline>(result_.Book.Entries);
        while (strip_->Go(1000)) {
        }
    }

    std::vector<ClockMark> Marks(int width, int distance) const {
        return ClockMarksOf(*strip_, ScaleOf(width), distance);
    }
    TimelineScale ScaleOf(int width) const {
        TimelineScale scale;
        scale.SetWidth(width);
        scale.SetStrip(strip_->Length());
        return scale;
    }
    const Timeline& Strip() const { return *strip_; }

  private:
    ReadResult result_;
    std::unique_ptr<Timeline> strip_;
};

} // namespace

TEST(ClockMarks, AreRoundTimes) {
    const MarkedStrip hour({"04.01.2010 08:05:00", "04.01.2010 09:05:00"});
    EXPECT_EQ(hour.Marks(600, 100), (std::vector<ClockMark>{{50, "04.01. 08:10"},
                                                            {150, "04.01. 08:20"},
                                                            {250, "04.01. 08:30"},
                                                            {350, "04.01. 08:40"},
                                                            {450, "04.01. 08:50"},
                                                            {550, "04.01. 09:00"}}));
    // Less room: fewer marks.
    EXPECT_EQ(hour.Marks(600, 101), (std::vector<ClockMark>{{250, "04.01. 08:30"}, {550, "04.01. 09:00"}}));
}

TEST(ClockMarks, HaveSecondsOrDaysAsThePieceIsLong) {
    const MarkedStrip seconds({"04.01.2010 08:00:00", "04.01.2010 08:00:20"});
    EXPECT_EQ(seconds.Marks(400, 150),
              (std::vector<ClockMark>{{0, "08:00:00"}, {200, "08:00:10"}, {400, "08:00:20"}}));
    const MarkedStrip days({"04.01.2010 12:00:00", "06.01.2010 12:00:00"});
    EXPECT_EQ(days.Marks(480, 200), (std::vector<ClockMark>{{120, "05.01.2010"}, {360, "06.01.2010"}}));
}

TEST(ClockMarks, BeginAgainBehindABreak) {
    // 30 minutes, then the clock is set back and 30 more follow.
    const MarkedStrip strip(
        {"04.01.2010 08:00:00", "04.01.2010 08:30:00", "04.01.2010 07:45:00", "04.01.2010 08:15:00"});
    EXPECT_EQ(strip.Marks(600, 100), (std::vector<ClockMark>{{0, "04.01. 08:00"},
                                                             {100, "04.01. 08:10"},
                                                             {200, "04.01. 08:20"},
                                                             {300, "04.01. 08:30"},
                                                             {450, "04.01. 08:00"},
                                                             {550, "04.01. 08:10"}}));
}

TEST(ClockMarks, ThereAreNoneOnAnEmptyStrip) {
    EXPECT_TRUE(MarkedStrip(std::vector<std::string>{}).Marks(600, 100).empty());
}

TEST(ClockMarks, NeverLieCloserThanAsked) {
    const MarkedStrip strip({"04.01.2010 08:00:00", "04.01.2010 08:30:00", "03.01.2010 07:45:00",
                             "04.03.2012 08:15:00", "04.03.2011 08:15:00", "05.03.2031 08:15:00"});
    std::mt19937 random(5);
    TimelineScale scale = strip.ScaleOf(900);
    for (int step = 0; step < 2000; ++step) {
        scale.Zoom(random() % 3 == 0 ? 2.1 : 0.7, static_cast<int>(random() % 900));
        const int distance = 40 + static_cast<int>(random() % 100);
        const std::vector<ClockMark> marks = ClockMarksOf(strip.Strip(), scale, distance);
        for (std::size_t i = 1; i < marks.size(); ++i)
            ASSERT_GE(marks[i].Pixel - marks[i - 1].Pixel, distance);
        for (const ClockMark& mark : marks) {
            ASSERT_GE(mark.Pixel, -1);
            ASSERT_LE(mark.Pixel, 901);
            ASSERT_FALSE(mark.Text.empty());
        }
    }
}
