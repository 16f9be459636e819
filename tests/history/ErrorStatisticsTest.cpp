// SPDX-License-Identifier: MIT
#include "history/ErrorStatistics.h"

#include "support/ReadText.h"

#include <gtest/gtest.h>

namespace {

std::string At(const std::string& clock) { return "04.01.2010 " + clock; }
std::string Fault(const std::string& clock, const std::string& text = "P1 door") {
    return Header("BERR:    " + text, At(clock));
}
std::string Cleared(const std::string& clock) { return Header("INFO:    HMI ERRCLEARED", At(clock)); }
std::string Reset(const std::string& clock) { return Header("RESET:", At(clock)); }

class ErrorStatistics : public testing::Test {
  protected:
    const std::vector<ErrorRecord>& Read(const std::vector<std::string>& lines,
                                         const ErrorChoice& choice = {}) {
        ReadText(Lines(lines), Result);
        const std::vector<Session> sessions = SessionsOf(Result.Book.Entries, Result.Book.Starts);
        Found = ErrorsOf(Result.Book.Entries, sessions, ErrorKeys(InitFacilityTable()), choice);
        return Found;
    }

    ReadResult Result;
    std::vector<ErrorRecord> Found;
};

using ClearedCount = std::optional<std::uint32_t>;

} // namespace

TEST_F(ErrorStatistics, CountsTheEntriesOfEachKey) {
    Read({Fault("08:00:00"), Fault("08:00:01", "N7 tool"), Fault("08:00:02"), Fault("08:00:03", "N5 tool"),
          Header("ERR:     P1 door", At("08:00:04"))});
    ASSERT_EQ(Found.size(), 3U);
    EXPECT_EQ(Found[0].Key, "P1");
    EXPECT_EQ(Found[0].Entries, 3U);
    EXPECT_EQ(Found[0].EventType, EventTypes::Fatal); // the highest
    EXPECT_EQ(Found[0].First, 0U);
    EXPECT_EQ(Found[0].Last, 4U);
    EXPECT_EQ(Found[0].FirstStamp, ReadStamp(At("08:00:00")));
    EXPECT_EQ(Found[0].LastStamp, ReadStamp(At("08:00:04")));
    EXPECT_EQ(Found[1].Key, "N5"); // as often as N7
    EXPECT_EQ(Found[2].Key, "N7");
}

TEST_F(ErrorStatistics, EpisodesEndAfterAMinute) {
    Read({Fault("08:00:00"), Fault("08:01:00"), Fault("08:02:00"), Fault("08:03:01")});
    EXPECT_EQ(Found[0].Episodes, 2U);
    EXPECT_EQ(Found[0].Sessions, 1U);
}

TEST_F(ErrorStatistics, EpisodesEndWithTheSession) {
    Read({Fault("08:00:00"), Reset("08:00:01"), Fault("08:00:02"), Reset("08:00:03"), Reset("08:00:04"),
          Fault("08:00:05"), Fault("08:00:06")});
    EXPECT_EQ(Found[0].Episodes, 3U);
    EXPECT_EQ(Found[0].Sessions, 3U);
}

TEST_F(ErrorStatistics, EpisodesBeginWithAStampThatIsEarlierOrUnreadable) {
    Read({Fault("08:00:10"), Fault("08:00:09")});
    EXPECT_EQ(Found[0].Episodes, 2U);
    Read({Fault("08:00:10"), Fault("08:61:00"), Fault("08:00:11")});
    EXPECT_EQ(Found[0].Episodes, 3U);
    // Known to the second only: not earlier.
    Read({Fault("08:00:10.900"), Fault("08:00:10")});
    EXPECT_EQ(Found[0].Episodes, 1U);
}

TEST_F(ErrorStatistics, ChatteringIsTheMostInAnyMinute) {
    Read({Fault("08:00:00"), Fault("08:00:59")});
    EXPECT_EQ(Found[0].Chattering, 0U);
    Read({Fault("08:00:00"), Fault("08:00:30"), Fault("08:01:00")}); // both ends
    EXPECT_EQ(Found[0].Chattering, 3U);
    Read({Fault("08:00:00"), Fault("08:00:30"), Fault("08:01:01")});
    EXPECT_EQ(Found[0].Chattering, 0U);
    Read({Fault("08:00:00"), Fault("08:00:30"), Fault("08:01:10"), Fault("08:01:20"), Fault("08:01:29"),
          Fault("08:03:00")});
    EXPECT_EQ(Found[0].Chattering, 4U);
    Read({Fault("08:00:00"), Fault("08:00:01"), Reset("08:00:02"), Fault("08:00:03")});
    EXPECT_EQ(Found[0].Chattering, 0U);
    Read({Fault("08:00:10"), Fault("08:00:11"), Fault("08:00:05")}); // the clock was set
    EXPECT_EQ(Found[0].Chattering, 0U);
}

TEST_F(ErrorStatistics, ClearedCountsTheEpisodesThatSuchAMessageEnds) {
    // Ended; ended twice, which counts once; not ended.
    Read({Fault("08:00:00"), Cleared("08:00:05"), "  P1", Fault("08:10:00"), Cleared("08:10:01"), "  P1 CE",
          Cleared("08:10:02"), "  P1", Fault("08:20:00")});
    EXPECT_EQ(Found[0].Episodes, 3U);
    EXPECT_EQ(Found[0].Cleared, ClearedCount(2));
    // In the middle of an episode it ends nothing.
    Read({Fault("08:00:00"), Cleared("08:00:05"), "  P1", Fault("08:00:10")});
    EXPECT_EQ(Found[0].Cleared, ClearedCount(0));
    // Of another session, and of another error.
    Read({Fault("08:00:00"), Reset("08:00:01"), Cleared("08:00:05"), "  P1"});
    EXPECT_EQ(Found[0].Cleared, ClearedCount(0));
    Read({Fault("08:00:00"), Cleared("08:00:05"), "  P2"});
    EXPECT_EQ(Found[0].Cleared, ClearedCount());
}

TEST_F(ErrorStatistics, ChoosesTypesAndEntries) {
    const std::vector<std::string> lines{Fault("08:00:00"),
                                         Header("WARNING: PLC COOLANT", At("08:00:01")),
                                         "  low",
                                         Fault("08:00:02"),
                                         Cleared("08:00:03"),
                                         "  P1"};
    EXPECT_EQ(Read(lines).size(), 1U);
    EXPECT_EQ(Read(lines, {.Warnings = true}).size(), 2U);
    Read(lines, {.Errors = false, .Warnings = true});
    ASSERT_EQ(Found.size(), 1U);
    EXPECT_EQ(Found[0].Key, "PLC/COOLANT low");
    Read(lines, {.Entries = {false, false, true, false}});
    ASSERT_EQ(Found.size(), 1U);
    EXPECT_EQ(Found[0].First, 2U);
    EXPECT_EQ(Found[0].Cleared, ClearedCount(1)); // also where the message is not chosen
}
