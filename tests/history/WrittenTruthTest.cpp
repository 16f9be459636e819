// SPDX-License-Identifier: MIT
// Sessions and errors of written logbooks, held against what the writer says that it wrote.
#include "history/ErrorStatistics.h"
#include "tools/WrittenLogbook.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace {

constexpr std::uint64_t Seeds = 50;

class WrittenTruth : public testing::TestWithParam<Generation> {
  protected:
    static WrittenLogbook Write(std::uint64_t seed, const Plants& plants) {
        return WriteOctober(GetParam(), 1200, seed, plants);
    }
};

// A time of the truth: seconds or milliseconds since a fixed day.
struct Time {
    std::int64_t Milliseconds = 0;
    bool HasMilliseconds = false;

    explicit Time(const std::string& iso) : HasMilliseconds(iso.size() > 19) {
        const auto number = [&](std::size_t at, std::size_t count) {
            return std::stoi(iso.substr(at, count));
        };
        const std::chrono::sys_days day = std::chrono::year(number(0, 4)) / number(5, 2) / number(8, 2);
        Milliseconds = (((day.time_since_epoch().count() * 24 + number(11, 2)) * 60 + number(14, 2)) * 60 +
                        number(17, 2)) *
                           1000 +
                       (HasMilliseconds ? number(20, 3) : 0);
    }

    // To a later one; negative when it is earlier.
    std::int64_t To(const Time& later) const {
        if (HasMilliseconds && later.HasMilliseconds)
            return later.Milliseconds - Milliseconds;
        return (later.Milliseconds / 1000 - Milliseconds / 1000) * 1000;
    }
};

struct Expected {
    std::uint32_t Entries = 0;
    std::uint32_t Episodes = 0;
    std::set<std::size_t> Sessions;
    std::optional<Time> Before;
    std::size_t SessionBefore = 0;
};

bool IsError(const nlohmann::json& truth) { return truth["what"] == "error"; }

} // namespace

INSTANTIATE_TEST_SUITE_P(Of, WrittenTruth, testing::ValuesIn(AllGenerations), NameOfGeneration);

TEST_P(WrittenTruth, SessionsBeginWithTheWrittenStarts) {
    for (std::uint64_t seed = 1; seed <= Seeds; ++seed)
        for (const Plants& plants : {Plants(), ManyPlants()}) {
            SCOPED_TRACE(seed);
            const WrittenLogbook book = Write(seed, plants);
            const Logbook& read = book.Read.Book;
            const std::vector<Session> sessions = SessionsOf(read.Entries, read.Starts);
            const std::vector<nlohmann::json> starts = book.TruthOf("start");
            const std::vector<nlohmann::json> errors = book.TruthOf("error");
            ASSERT_FALSE(sessions.empty());
            const std::size_t unrecorded = sessions[0].StartRecorded ? 0 : 1;
            ASSERT_EQ(sessions.size(), starts.size() + unrecorded);
            EntryNumber next = 0;
            for (std::size_t i = 0; i < sessions.size(); ++i) {
                ASSERT_EQ(sessions[i].First, next);
                next = sessions[i].End;
                const bool hasNext = i + 1 < sessions.size();
                const std::uint64_t begin =
                    i < unrecorded ? 0 : starts[i - unrecorded]["line"].get<std::uint64_t>();
                const std::uint64_t end =
                    hasNext ? starts[i + 1 - unrecorded]["line"].get<std::uint64_t>() : ~std::uint64_t{0};
                if (i >= unrecorded) {
                    ASSERT_EQ(IsoText(sessions[i].Start.value()), starts[i - unrecorded]["time"]);
                }
                const auto count =
                    std::count_if(errors.begin(), errors.end(), [&](const nlohmann::json& error) {
                        return error["line"] > begin && error["line"] < end;
                    });
                ASSERT_EQ(sessions[i].Errors, count) << i;
            }
            ASSERT_EQ(next, read.Entries.Count());
        }
}

TEST_P(WrittenTruth, ErrorsAreTheWrittenOnes) {
    for (std::uint64_t seed = 1; seed <= Seeds; ++seed)
        for (const Plants& plants : {Plants(), ManyPlants()}) {
            SCOPED_TRACE(seed);
            const WrittenLogbook book = Write(seed, plants);
            const Logbook& read = book.Read.Book;
            const std::vector<Session> sessions = SessionsOf(read.Entries, read.Starts);
            const std::vector<nlohmann::json> starts = book.TruthOf("start");
            std::map<std::string, Expected> expected;
            for (const nlohmann::json& error : book.TruthOf("error")) {
                ASSERT_TRUE(IsError(error));
                const auto session = static_cast<std::size_t>(
                    std::count_if(starts.begin(), starts.end(), [&](const nlohmann::json& start) {
                        return start["line"] < error["line"];
                    }));
                Expected& known = expected[error["key"]];
                const Time time(error["time"].get<std::string>());
                const std::int64_t gap = known.Before ? known.Before->To(time) : -1;
                if (known.SessionBefore != session || gap < 0 || gap > 60'000)
                    ++known.Episodes;
                ++known.Entries;
                known.Sessions.insert(session);
                known.Before = time;
                known.SessionBefore = session;
            }
            const std::vector<ErrorRecord> errors =
                ErrorsOf(read.Entries, sessions, ErrorKeys(InitFacilityTable()));
            ASSERT_EQ(errors.size(), expected.size());
            for (const ErrorRecord& error : errors) {
                const auto known = expected.find(error.Key);
                ASSERT_NE(known, expected.end()) << error.Key;
                ASSERT_EQ(error.Entries, known->second.Entries) << error.Key;
                ASSERT_EQ(error.Episodes, known->second.Episodes) << error.Key;
                ASSERT_EQ(error.Sessions, known->second.Sessions.size()) << error.Key;
            }
        }
}

TEST_P(WrittenTruth, PlantedStepsOfTheClockAreFound) {
    std::size_t back = 0;
    for (std::uint64_t seed = 1; seed <= Seeds; ++seed) {
        SCOPED_TRACE(seed);
        const WrittenLogbook book = Write(seed, ManyPlants());
        std::uint32_t planted = 0;
        for (const nlohmann::json& step : book.TruthOf("clock"))
            planted +=
                Time(step["from"].get<std::string>()).To(Time(step["to"].get<std::string>())) < 0 ? 1U : 0U;
        std::uint32_t found = 0;
        for (const Session& session : SessionsOf(book.Read.Book.Entries, book.Read.Book.Starts))
            found += session.ClockSteps;
        // A step before a line that is folded away, or is no entry, shows at the next entry unless time has
        // caught up; none is found that was not planted.
        ASSERT_LE(found, planted);
        back += found;
    }
    EXPECT_GT(back, Seeds);
}

TEST_P(WrittenTruth, NothingIsFoundWhereNothingWasPlanted) {
    for (std::uint64_t seed = 1; seed <= Seeds; ++seed) {
        SCOPED_TRACE(seed);
        const WrittenLogbook book = Write(seed, Plants());
        for (const Session& session : SessionsOf(book.Read.Book.Entries, book.Read.Book.Starts))
            ASSERT_EQ(session.ClockSteps, 0U);
        ASSERT_TRUE(book.TruthOf("clock").empty());
    }
}
