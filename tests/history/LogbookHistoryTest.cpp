// SPDX-License-Identifier: MIT
#include "history/LogbookHistory.h"

#include "support/ReadText.h"
#include "support/TemporaryFolder.h"
#include "tools/WrittenLogbook.h"

#include <gtest/gtest.h>

namespace {

std::string ClockAt(const std::string& clock) { return "04.01.2010 " + clock; }

class HistoryOfParts : public testing::TestWithParam<Generation> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Of, HistoryOfParts, testing::ValuesIn(AllGenerations), NameOfGeneration);

TEST_P(HistoryOfParts, IsTheHistoryOfTheWhole) {
    for (std::uint64_t seed = 1; seed <= 5; ++seed) {
        const WrittenLogbook book = WriteOctober(GetParam(), 1200, seed, ManyPlants());
        const EntryTable& entries = book.Read.Book.Entries;
        const std::vector<Session> sessions = SessionsOf(entries, book.Read.Book.Starts);
        const ErrorKeys keys(InitFacilityTable());
        const ErrorChoice choice{.Errors = true, .Warnings = true};
        const std::vector<ErrorRecord> errors = ErrorsOf(entries, sessions, keys, choice);
        ASSERT_GT(errors.size(), 3U);
        for (const std::size_t atOnce : {std::size_t{1}, std::size_t{7}, std::size_t{500}}) {
            SessionsRun sessionsRun(entries, book.Read.Book.Starts);
            while (sessionsRun.Go(atOnce)) {
            }
            EXPECT_EQ(sessionsRun.Take(), sessions);
            ErrorsRun errorsRun(entries, sessions, keys, choice);
            while (errorsRun.Go(atOnce)) {
            }
            EXPECT_EQ(errorsRun.Take(), errors);
        }
    }
}

TEST(LogbookHistory, HasSessionsErrorsAndTheirTexts) {
    const TemporaryFolder folder;
    ReadResult result;
    ReadText(Lines({Header("RESET:", ClockAt("08:00:00")), Header("BERR:    P1 door", ClockAt("08:00:10")),
                    Header("WARNING: PLC COOLANT", ClockAt("08:00:20")), "  low"}),
             result);
    LogbookHistory history(result.Book, {folder.Path().string()});
    EXPECT_FALSE(history.IsDone());
    double percent = history.Percent();
    EXPECT_EQ(percent, 0);
    while (history.Go()) {
        EXPECT_GE(history.Percent(), percent);
        percent = history.Percent();
    }
    EXPECT_TRUE(history.IsDone());
    EXPECT_EQ(history.Percent(), 100);
    EXPECT_EQ(history.Sessions().size(), 1U);
    EXPECT_EQ(history.Spans().size(), 1U);
    EXPECT_EQ(history.Strip().Length(), std::chrono::seconds(20));
    ASSERT_EQ(history.Errors().size(), 2U); // warnings are among them
    EXPECT_EQ(history.Errors()[0].Record.Key, "P1");
    EXPECT_EQ(history.Errors()[0].English, std::nullopt);
    EXPECT_EQ(history.ErrorOf(0), std::nullopt);
    EXPECT_EQ(history.ErrorOf(1), 0U);
    EXPECT_EQ(history.ErrorOf(2), 1U);
}

TEST(LogbookHistory, LooksTextsUpInBothLanguages) {
    ReadResult result;
    ReadText(Lines({Header("BERR:    N155 tool", ClockAt("08:00:10"))}), result);
    LogbookHistory history(result.Book, {QORVIX_SOURCE_FOLDER "/samples/language/"});
    while (history.Go()) {
    }
    ASSERT_EQ(history.Errors().size(), 1U);
    const ExplainedError& error = history.Errors()[0];
    EXPECT_EQ(error.English, "Tool is not defined");
    ASSERT_TRUE(error.German);
    EXPECT_NE(error.German, error.English);
    const ErrorTexts full = history.FullTexts(error.Record);
    ASSERT_TRUE(full.English);
    EXPECT_NE(full.English->find("The tool is not in the tool table."), std::string::npos);
}

TEST(LogbookHistory, OfAnEmptyLogbookIsEmpty) {
    ReadResult result;
    ReadText("", result);
    LogbookHistory history(result.Book, {});
    while (history.Go()) {
    }
    EXPECT_TRUE(history.Sessions().empty());
    EXPECT_TRUE(history.Errors().empty());
    EXPECT_EQ(history.Strip().Length(), std::chrono::seconds(0));
}
