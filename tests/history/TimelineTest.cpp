// SPDX-License-Identifier: MIT
#include "history/Timeline.h"

#include "support/EntriesFrom.h"
#include "support/ReadText.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using std::chrono::minutes;
using std::chrono::seconds;
using Place = Timeline::Place;

class Strip : public testing::Test {
  protected:
    const Timeline& Make(const std::vector<TestEntry>& entries) {
        FillTable(Entries, entries);
        return MakeOfTable();
    }
    const Timeline& MakeOfTable(std::size_t atOnce = 1000) {
        Made.emplace(Entries);
        while (Made->Go(atOnce)) {
        }
        return *Made;
    }

    EntryTable Entries;
    std::optional<Timeline> Made;
};

TestEntry EntryAt(const std::string& clock, std::int16_t type = EventTypes::Info) {
    return {type, "x", "", "", "04.01.2010 " + clock};
}
TestEntry Unreadable() { return {EventTypes::Info, "x", "", "", "at noon"}; }

Timeline::Time TimeOf(const std::string& clock) {
    return ReadStamp("04.01.2010 " + clock).value_or(Stamp{}).Moment;
}

} // namespace

TEST_F(Strip, RunsByTheStamps) {
    const Timeline& strip = Make({EntryAt("08:00:00"), EntryAt("08:10:00"), EntryAt("08:30:00.500")});
    EXPECT_EQ(strip.Length(), minutes(30) + Place(500));
    EXPECT_EQ(strip.PlaceOf(0), Place(0));
    EXPECT_EQ(strip.PlaceOf(1), minutes(10));
    EXPECT_EQ(strip.PlaceOf(2), strip.Length());
    EXPECT_EQ(strip.TimeAt(minutes(5)), TimeOf("08:05:00"));
    EXPECT_EQ(strip.FirstAt(Place(0)), 0U);
    EXPECT_EQ(strip.FirstAt(Place(1)), 1U);
    EXPECT_EQ(strip.FirstAt(minutes(10)), 1U);
    EXPECT_EQ(strip.FirstAt(strip.Length()), 2U);
    EXPECT_EQ(strip.FirstAt(strip.Length() + Place(1)), 3U);
}

TEST_F(Strip, BreaksWhereTheClockWasSetBack) {
    const Timeline& strip = Make({EntryAt("08:00:00"), EntryAt("08:10:00"), EntryAt("08:30:00"),
                                  EntryAt("07:50:00"), EntryAt("08:05:00")});
    ASSERT_EQ(strip.Parts().size(), 2U);
    EXPECT_EQ(strip.Parts()[1], (Timeline::Part{3, TimeOf("07:50:00"), minutes(30)}));
    EXPECT_EQ(strip.Length(), minutes(45));
    EXPECT_EQ(strip.PlaceOf(3), minutes(30));
    EXPECT_EQ(strip.PlaceOf(4), minutes(45));
    EXPECT_EQ(strip.TimeAt(minutes(30)), TimeOf("08:30:00"));
    EXPECT_EQ(strip.TimeAt(minutes(31)), TimeOf("07:51:00"));
    EXPECT_EQ(strip.FirstAt(minutes(30)), 2U);
    EXPECT_EQ(strip.FirstAt(minutes(30) + Place(1)), 4U);
}

TEST_F(Strip, DoesNotBreakWhereStampsAreKnownToTheSecond) {
    const Timeline& strip =
        Make({EntryAt("08:00:00"), EntryAt("08:00:10.900"), EntryAt("08:00:10"), EntryAt("08:00:11")});
    EXPECT_EQ(strip.Parts().size(), 1U);
    EXPECT_EQ(strip.Length(), seconds(11));
}

TEST_F(Strip, HoldsEntriesWithoutAReadableStampBesideTheOneBefore) {
    const Timeline& strip =
        Make({Unreadable(), EntryAt("08:00:00"), EntryAt("08:10:00"), Unreadable(), EntryAt("08:20:00")});
    EXPECT_EQ(strip.PlaceOf(0), Place(0));
    EXPECT_EQ(strip.PlaceOf(1), Place(0));
    EXPECT_EQ(strip.PlaceOf(3), minutes(10));
    EXPECT_EQ(strip.Parts().size(), 1U);
    EXPECT_EQ(strip.Parts()[0].First, 0U);
    EXPECT_EQ(strip.FirstAt(minutes(11)), 4U);
}

TEST_F(Strip, IsEmptyWithoutAReadableStamp) {
    const Timeline& strip = Make({Unreadable(), Unreadable()});
    EXPECT_EQ(strip.Length(), Place(0));
    EXPECT_EQ(strip.PlaceOf(1), Place(0));
    EXPECT_EQ(strip.TimeAt(Place(0)), std::nullopt);
    EXPECT_EQ(strip.FirstAt(Place(0)), 0U);
    EXPECT_EQ(strip.FirstAt(Place(1)), 2U);
    Entries.ResetToOneEmpty(0, 0);
    EXPECT_EQ(MakeOfTable().Length(), Place(0));
    EXPECT_EQ(Made->FirstAt(Place(0)), 0U);
}

TEST_F(Strip, KnowsErrorsAndWarnings) {
    const Timeline& strip =
        Make({EntryAt("08:00:00", EventTypes::Error), EntryAt("08:00:01", EventTypes::Warning),
              EntryAt("08:00:02", EventTypes::Fatal), EntryAt("08:00:03", EventTypes::Info)});
    EXPECT_EQ(strip.Errors().Numbers(), (std::vector<EntryNumber>{0, 2}));
    EXPECT_EQ(strip.Warnings().Numbers(), (std::vector<EntryNumber>{1}));
}

TEST_F(Strip, StandsStillBehindTheLastBreakOfMany) {
    std::vector<TestEntry> entries;
    for (std::size_t i = 0; i < Timeline::MostParts + 10; ++i)
        entries.push_back(EntryAt(i % 2 == 0 ? "08:00:01" : "08:00:00"));
    entries.push_back(EntryAt("09:00:00"));
    const Timeline& strip = Make(entries);
    EXPECT_LE(strip.Parts().size(), Timeline::MostParts);
    EXPECT_GT(strip.Length(), minutes(50));
}

// Against a walk from entry to entry, in steps of all sizes.
TEST_F(Strip, IsWhatAWalkFromEntryToEntryGives) {
    std::mt19937 random(7);
    for (int round = 0; round < 60; ++round) {
        std::vector<TestEntry> entries;
        int clock = 36000;
        for (auto i = random() % 1500; i-- > 0;) {
            clock += static_cast<int>(random() % 5);
            if (random() % 100 == 0)
                clock -= static_cast<int>(random() % 50);
            entries.push_back(EntryAt(std::to_string(clock / 3600) + ':' + std::to_string(clock / 60 % 60) +
                                      ':' + std::to_string(clock % 60)));
            if (random() % 20 == 0)
                entries.back().Time = "?";
        }
        entries.push_back(EntryAt("23:00:00"));
        FillTable(Entries, entries);
        const Timeline& strip = MakeOfTable(1 + random() % 700);

        std::vector<Place> places;
        std::optional<Timeline::Time> before;
        Place place(0);
        for (EntryNumber entry = 0; entry < Entries.Count(); ++entry) {
            const std::optional<Stamp> stamp = ReadStamp(Entries.Time(entry));
            if (stamp && before && stamp->Moment > *before)
                place += stamp->Moment - *before;
            if (stamp)
                before = stamp->Moment;
            places.push_back(place);
            ASSERT_EQ(strip.PlaceOf(entry), place) << entry;
        }
        EXPECT_EQ(strip.Length(), place);
        for (int question = 0; question < 50; ++question) {
            const Place wanted(random() % static_cast<unsigned>(place.count() + 2000));
            const auto found = std::lower_bound(places.begin(), places.end(), wanted) - places.begin();
            ASSERT_EQ(strip.FirstAt(wanted), static_cast<EntryNumber>(found));
        }
    }
}

TEST(SessionSpans, ReachFromStartToStart) {
    ReadResult result;
    const auto at = [](const std::string& clock) { return "04.01.2010 " + clock; };
    ReadText(Lines({Header("STIB:    On", at("08:00:00")), Header("STIB:    On", at("08:00:30")),
                    Header("RESET:", at("08:10:00")), Header("STIB:    On", at("08:20:00")),
                    Header("RESET:", at("09:00:00")), Header("RESET:", at("09:00:10")),
                    Header("STIB:    On", at("09:01:00"))}),
             result);
    Timeline strip(result.Book.Entries);
    while (strip.Go(1000)) {
    }
    const std::vector<Session> sessions = SessionsOf(result.Book.Entries, result.Book.Starts);
    EXPECT_EQ(SpansOf(sessions, strip),
              (std::vector<SessionSpan>{{seconds(0), seconds(30), minutes(10)},
                                        {minutes(10), minutes(20), minutes(60)},
                                        {minutes(60), minutes(60), minutes(60) + seconds(10)},
                                        {minutes(60) + seconds(10), minutes(61), minutes(61)}}));
}

TEST(SessionSpans, GoOnAtABreakOfTheStrip) {
    ReadResult result;
    const auto at = [](const std::string& clock) { return "04.01.2010 " + clock; };
    ReadText(Lines({Header("RESET:", at("08:00:00")), Header("STIB:    On", at("08:10:00")),
                    Header("RESET:", at("07:00:00")), Header("STIB:    On", at("07:05:00"))}),
             result);
    Timeline strip(result.Book.Entries);
    while (strip.Go(1000)) {
    }
    EXPECT_EQ(SpansOf(SessionsOf(result.Book.Entries, result.Book.Starts), strip),
              (std::vector<SessionSpan>{{seconds(0), minutes(10), minutes(10)},
                                        {minutes(10), minutes(15), minutes(15)}}));
}
