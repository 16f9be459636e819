// SPDX-License-Identifier: MIT
#include "history/Sessions.h"

#include "support/ReadText.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

std::string StatusAt(const std::string& clock) { return Header("STIB:    On", "04.01.2010 " + clock); }
std::string StartAt(const std::string& clock) { return Header("RESET:", "04.01.2010 " + clock); }
std::string FaultAt(const std::string& clock) { return Header("BERR:    fault", "04.01.2010 " + clock); }

class Sessions : public testing::Test {
  protected:
    const std::vector<Session>& Read(const std::vector<std::string>& lines) {
        ReadText(Lines(lines), Result);
        Found = SessionsOf(Result.Book.Entries, Result.Book.Starts);
        return Found;
    }

    ReadResult Result;
    std::vector<Session> Found;
};

// "first-end recorded next" with "-" for nothing.
std::string Summary(const std::vector<Session>& sessions) {
    std::ostringstream text;
    const auto seconds = [](const std::optional<Session::Duration>& time) {
        return time ? std::to_string(time->count() / 1000) : std::string("-");
    };
    for (const Session& session : sessions)
        text << (session.StartRecorded ? "" : "? ") << session.First << '-' << session.End << ' '
             << seconds(session.Recorded) << ' ' << seconds(session.ToNext) << '\n';
    return text.str();
}

} // namespace

TEST_F(Sessions, ReachFromOneStartToTheNext) {
    EXPECT_EQ(Summary(Read({StatusAt("08:00:00"), StatusAt("08:00:10"), StartAt("09:00:00"),
                            StatusAt("09:00:30"), StartAt("10:00:00"), StatusAt("10:00:05")})),
              "? 0-2 10 -\n"
              "2-4 30 3600\n"
              "4-6 5 -\n");
    EXPECT_EQ(Found[0].LastEntry, ReadStamp("04.01.2010 08:00:10"));
    EXPECT_EQ(Found[1].Start, ReadStamp("04.01.2010 09:00:00"));
    EXPECT_EQ(RecordedTime(Found), std::chrono::seconds(45));
    EXPECT_EQ(MostTime(Found), std::chrono::seconds(10 + 3600 + 5));
    // A clock that was set back does not make the bound smaller than what is recorded.
    Read({StartAt("06:00:00"), StatusAt("08:00:00"), StartAt("05:00:00"), StatusAt("05:10:00")});
    EXPECT_EQ(RecordedTime(Found), std::chrono::minutes(130));
    EXPECT_EQ(MostTime(Found), std::chrono::minutes(130));
    Read({StatusAt("06:00:00"), StartAt("07:00:00"), StatusAt("08:00:00")});
    EXPECT_EQ(MostTime(Found), std::nullopt);
}

TEST_F(Sessions, BeginWithEachStartAlsoWhereNothingFollowsIt) {
    EXPECT_EQ(
        Summary(Read({StartAt("08:00:00"), StartAt("08:00:10"), StartAt("08:00:30"), StatusAt("08:01:00")})),
        "0-1 - 10\n"
        "1-1 - 20\n"
        "1-2 30 -\n");
    EXPECT_EQ(Found[0].LastEntry, ReadStamp("04.01.2010 08:00:00"));
    EXPECT_EQ(Found[1].LastEntry, std::nullopt);
    EXPECT_EQ(Found[1].EntryCount(), 0U);
}

TEST_F(Sessions, AreNoneWithoutAnEntry) {
    EXPECT_EQ(Summary(Read({"nothing of a logbook", "and nothing more"})), "");
    ReadText("", Result);
    EXPECT_TRUE(SessionsOf(Result.Book.Entries, Result.Book.Starts).empty());
}

TEST_F(Sessions, CountErrorsAndWarnings) {
    Read({StartAt("08:00:00"), FaultAt("08:00:01"), Header("PLC ERROR:  1 door", "04.01.2010 08:00:05"),
          Header("WARNING: PLC COOLANT", "04.01.2010 08:00:06"), "  low", StatusAt("08:00:20")});
    ASSERT_EQ(Found.size(), 1U);
    EXPECT_EQ(Found[0].Errors, 2U);
    EXPECT_EQ(Found[0].Warnings, 1U);
    EXPECT_EQ(Found[0].LastError, 2U);
    EXPECT_EQ(Found[0].LastErrorBeforeEnd, std::chrono::seconds(15));
}

TEST_F(Sessions, LeaveEmptyWhatCannotBeRead) {
    EXPECT_EQ(Summary(Read({StartAt("25:00:00"), StatusAt("08:00:00"), FaultAt("08:61:00"),
                            StartAt("09:00:00"), StatusAt("08:00:00 x")})),
              "0-3 - -\n"
              "3-5 - -\n");
    EXPECT_EQ(Found[0].LastEntry, ReadStamp("04.01.2010 08:00:00"));
    EXPECT_EQ(Found[0].LastError, 2U);
    EXPECT_EQ(Found[0].LastErrorBeforeEnd, std::nullopt);
}

TEST_F(Sessions, AreNeverShorterThanNothing) {
    EXPECT_EQ(
        Summary(Read({StartAt("09:00:00"), FaultAt("09:30:00"), StatusAt("08:00:00"), StartAt("07:00:00")})),
        "0-3 0 0\n"
        "3-4 - -\n");
    EXPECT_EQ(Found[0].LastErrorBeforeEnd, std::chrono::seconds(0));
}

TEST_F(Sessions, CountStepsOfTheClockToTheLineWithTheEarlierStamp) {
    Read({StatusAt("09:00:00"), StatusAt("08:59:59"), StatusAt("08:59:59"), StartAt("08:00:00"),
          StatusAt("08:00:01.500"), StatusAt("08:00:01"), StatusAt("08:00:00.900")});
    ASSERT_EQ(Found.size(), 2U);
    EXPECT_EQ(Found[0].ClockSteps, 1U);
    // The start, and the last entry; not the one that is known to the second only.
    EXPECT_EQ(Found[1].ClockSteps, 2U);
    EXPECT_EQ(Found[1].SummerTimeSteps, 0U);
}

TEST_F(Sessions, KnowTheHourOfOctober) {
    Read({Header("STIB:    On", "31.10.2010 02:59:58"), Header("STIB:    On", "31.10.2010 02:00:03")});
    ASSERT_EQ(Found.size(), 1U);
    EXPECT_EQ(Found[0].ClockSteps, 1U);
    EXPECT_EQ(Found[0].SummerTimeSteps, 1U);
}
