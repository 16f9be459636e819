// SPDX-License-Identifier: MIT
// What the generator says of a logbook is held against what reading gives.
#include "tools/ErrorKey.h"
#include "tools/WrittenLogbook.h"

#include <gtest/gtest.h>

#include <set>

namespace {

constexpr std::uint64_t Seeds = 50;

class Truth : public testing::TestWithParam<Generation> {
  protected:
    static WrittenLogbook Write(std::uint64_t seed, const Plants& plants) {
        return WriteOctober(GetParam(), 1000, seed, plants);
    }
};

bool IsError(const LogbookEntry& entry) {
    return entry.EventType == EventTypes::Error || entry.EventType == EventTypes::Fatal;
}

std::string KeyOf(const LogbookEntry& entry) { return ErrorKey(entry.Sender, entry.Name, entry.Data); }

// Without milliseconds.
std::string InSeconds(const nlohmann::json& iso) { return iso.get<std::string>().substr(0, 19); }

// From the time in one line to that in another, but for whole hours: the clock may be set between.
int SecondsBetween(const std::string& from, const std::string& to) {
    constexpr int Hour = 3600;
    const auto secondsOf = [](const std::string& line) {
        // In the separated generation the clock begins in column 45, otherwise the line ends with it.
        const std::size_t colon = line.find(':', 40) == 46 ? 46 : line.rfind(':') - 3;
        return std::stoi(line.substr(colon + 1, 2)) * 60 + std::stoi(line.substr(colon + 4, 2));
    };
    return (secondsOf(to) - secondsOf(from) + Hour) % Hour;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Of, Truth, testing::ValuesIn(AllGenerations), NameOfGeneration);

TEST_P(Truth, ErrorsAreThoseOfTheList) {
    for (std::uint64_t seed = 1; seed <= Seeds; ++seed)
        for (const Plants& plants : {Plants(), ManyPlants()}) {
            SCOPED_TRACE(seed);
            const WrittenLogbook book = Write(seed, plants);
            const std::vector<nlohmann::json> errors = book.TruthOf("error");
            std::size_t next = 0;
            for (EntryNumber number = 0; number < book.Read.Book.Entries.Count(); ++number) {
                const LogbookEntry entry = book.Read.Book.Entries[number];
                if (!IsError(entry))
                    continue;
                ASSERT_LT(next, errors.size());
                const nlohmann::json& error = errors[next++];
                ASSERT_EQ(error["key"], KeyOf(entry)) << error;
                ASSERT_EQ(error["type"], entry.EventType) << error;
                ASSERT_EQ(error["time"], Iso(entry.Time)) << error;
            }
            ASSERT_EQ(next, errors.size());
            ASSERT_GT(next, 10U);
        }
}

TEST_P(Truth, StartsAreAllThatWereWritten) {
    const std::string_view mark = GetParam() == Generation::Classic     ? "RESET:"
                                  : GetParam() == Generation::Separated ? "Reset"
                                                                        : "  SYSTEM START";
    const std::size_t linesBefore = GetParam() == Generation::Operation ? 1U : 0U;
    bool folded = false;
    for (std::uint64_t seed = 1; seed <= Seeds; ++seed) {
        SCOPED_TRACE(seed);
        const WrittenLogbook book = Write(seed, ManyPlants());
        std::vector<std::size_t> written;
        for (std::size_t i = 0; i < book.Lines.size(); ++i)
            if (book.Lines[i].starts_with(mark))
                written.push_back(i + 1 - linesBefore);
        std::vector<std::size_t> told;
        for (const nlohmann::json& start : book.TruthOf("start"))
            told.push_back(start["line"]);
        ASSERT_EQ(told, written);
        std::size_t listed = 0;
        for (EntryNumber number = 0; number < book.Read.Book.Entries.Count(); ++number)
            listed += book.Read.Book.Entries.Kind(number).EventType == EventTypes::Restart ? 1U : 0U;
        ASSERT_LE(listed, told.size());
        folded = folded || listed < told.size();
    }
    EXPECT_TRUE(folded);
}

TEST_P(Truth, LinesHaveTheirTimes) {
    const WrittenLogbook book = Write(1, ManyPlants());
    for (const nlohmann::json& object : book.Truth) {
        const std::string& line = book.Lines.at(object["line"].get<std::size_t>() - 1);
        EXPECT_FALSE(line.starts_with(' ') || line.starts_with('_')) << line;
        const char* const time = object["what"] == "clock" ? "to" : "time";
        if (!object.contains(time))
            continue;
        const std::string iso = object[time];
        EXPECT_NE(line.find(iso.substr(11)), std::string::npos) << line << " " << object;
    }
}

TEST_P(Truth, StepsBackAreThoseOfTheList) {
    std::size_t steps = 0;
    std::size_t stepsForth = 0;
    for (std::uint64_t seed = 1; seed <= Seeds; ++seed) {
        SCOPED_TRACE(seed);
        const WrittenLogbook book = Write(seed, ManyPlants());
        std::vector<std::string> listed;
        std::string before;
        for (EntryNumber number = 0; number < book.Read.Book.Entries.Count(); ++number) {
            const std::string time = Iso(book.Read.Book.Entries.Time(number)).substr(0, 19);
            if (time < before)
                listed.push_back(time);
            before = time;
        }
        std::vector<std::string> told;
        for (const nlohmann::json& step : book.TruthOf("clock")) {
            if (step["to"] < step["from"])
                told.push_back(InSeconds(step["to"]));
            else
                ++stepsForth;
        }
        ASSERT_EQ(told, listed);
        steps += told.size();
    }
    EXPECT_GT(steps, 50U);
    EXPECT_GT(stepsForth, 50U);
}

TEST_P(Truth, ClearedErrorsWereRaisedBefore) {
    std::size_t count = 0;
    for (std::uint64_t seed = 1; seed <= Seeds; ++seed) {
        const WrittenLogbook book = Write(seed, ManyPlants());
        std::vector<std::string> listed;
        std::set<std::string> raised;
        for (EntryNumber number = 0; number < book.Read.Book.Entries.Count(); ++number) {
            const LogbookEntry entry = book.Read.Book.Entries[number];
            if (IsError(entry))
                raised.insert(KeyOf(entry));
            if (entry.Image != Images::ErrorCleared)
                continue;
            const std::optional<std::string> key = LetterAndNumber(entry.Data);
            if (key && raised.contains(*key))
                listed.push_back(*key);
        }
        std::vector<std::string> told;
        for (const nlohmann::json& cleared : book.TruthOf("cleared"))
            told.push_back(cleared["key"]);
        ASSERT_EQ(told, listed) << seed;
        count += told.size();
    }
    EXPECT_EQ(count > Seeds, GetParam() != Generation::Operation);
}

TEST_P(Truth, PrecursorsComeWithinAMinuteBeforeTheirError) {
    std::size_t count = 0;
    for (std::uint64_t seed = 1; seed <= Seeds; ++seed) {
        SCOPED_TRACE(seed);
        const WrittenLogbook book = Write(seed, ManyPlants());
        for (std::size_t i = 0; i < book.Truth.size(); ++i) {
            const nlohmann::json& precursor = book.Truth[i];
            if (precursor["what"] != "precursor")
                continue;
            ++count;
            ASSERT_GT(i, 0U);
            const nlohmann::json& error = book.Truth[i - 1];
            ASSERT_EQ(error["what"], "error");
            ASSERT_EQ(precursor["before"], error["key"]);
            ASSERT_LT(precursor["line"], error["line"]);
            const int way = SecondsBetween(book.Lines[precursor["line"].get<std::size_t>() - 1],
                                           book.Lines[error["line"].get<std::size_t>() - 1]);
            ASSERT_GE(way, 2); // 3 seconds, of which the lines may lack parts
            ASSERT_LE(way, 60);
            ASSERT_NE(precursor["key"], error["key"]);
        }
    }
    EXPECT_GT(count, Seeds);
}

TEST_P(Truth, ChatteringIsOneErrorInARow) {
    std::size_t count = 0;
    for (std::uint64_t seed = 1; seed <= Seeds; ++seed) {
        SCOPED_TRACE(seed);
        const WrittenLogbook book = Write(seed, ManyPlants());
        const std::vector<nlohmann::json> errors = book.TruthOf("error");
        for (const nlohmann::json& run : book.TruthOf("chatter")) {
            ++count;
            auto error = std::find_if(errors.begin(), errors.end(), [&](const nlohmann::json& candidate) {
                return candidate["line"] == run["line"];
            });
            for (std::size_t i = 0; i < run["count"].get<std::size_t>(); ++i, ++error) {
                ASSERT_NE(error, errors.end());
                ASSERT_EQ((*error)["key"], run["key"]);
            }
            ASSERT_LE(run["count"], 40);
            ASSERT_GE(run["seconds"], 0);
            ASSERT_LE(run["seconds"], 60);
        }
    }
    EXPECT_GT(count, Seeds);
}

TEST_P(Truth, NothingIsPlantedWithoutAnOrder) {
    for (std::uint64_t seed = 1; seed <= Seeds; ++seed) {
        const WrittenLogbook book = Write(seed, Plants());
        for (const char* const what : {"clock", "precursor", "chatter"})
            EXPECT_TRUE(book.TruthOf(what).empty()) << seed << " " << what;
        EXPECT_EQ(book.Text.find("Event: "), std::string::npos) << seed;
    }
}

TEST(TruthObjects, HaveTheirKeysInOrder) {
    LogbookOrder order;
    order.entries = 33;
    order.seed = 975;
    std::ostringstream out;
    std::ostringstream truth;
    WriteLogbook(order, out, &truth);
    EXPECT_EQ(truth.str(), R"({"what":"error","line":3,"time":"2010-01-04T06:12:03","type":3,"key":"N215"})"
                           "\n"
                           R"({"what":"start","line":34,"time":"2010-01-04T12:45:02"})"
                           "\n"
                           R"({"what":"start","line":35,"time":"2010-01-04T12:45:44"})"
                           "\n"
                           R"({"what":"start","line":36,"time":"2010-01-04T12:46:07"})"
                           "\n"
                           R"({"what":"start","line":37,"time":"2010-01-04T12:47:06"})"
                           "\n");
}
