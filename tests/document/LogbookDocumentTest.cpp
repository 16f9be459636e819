// SPDX-License-Identifier: MIT
// A logbook as a person works with it, without a window.
#include "document/LogbookDocument.h"

#include "base/Paths.h"
#include "filter/FilterStorage.h"
#include "filter/FilterText.h"
#include "filter/FiltersInForce.h"
#include "rows/EntryActions.h"
#include "support/MemorySettings.h"
#include "support/ReadText.h"
#include "support/ScriptedUser.h"
#include "support/TemporaryFolder.h"
#include "support/ZipReader.h"
#include "support/ZipWriter.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Answer = UserInterface::Answer;

// Writes down what it is told.
class RecordingView : public DocumentView {
  public:
    ScriptedUser& User() override { return Person; }
    RecordingProgress& Progress() override { return Reading; }
    Language DialogLanguage() const override { return {}; }

    void LogbookIsOpen(std::string_view name) override { Tell("open " + std::string(name)); }
    void ReadingBegins() override { Tell("reading"); }
    void LogbookIsRead(std::string_view title) override { Tell("read " + std::string(title)); }
    void ReadingEnds() override { Tell("ended"); }
    void MessageFollows() override { Tell("message"); }
    void FilteringBegins() override { Tell("filtering"); }
    void FilteringEnds() override { Tell("filtered"); }
    void CommentsFailed(const std::string& name, const CommentsFileResult&) override {
        Tell("no comments of " + name);
    }
    void FilteringFailed() override { Tell("failed"); }
    void ReadingFailed(std::int16_t loadState) override { Tell("state " + std::to_string(loadState)); }
    void ShowCounts() override { Tell("counts"); }
    void ChangeRows(const std::function<void()>& change) override {
        change();
        Tell("rows");
    }
    std::optional<EntryNumber> SelectedEntry() const override { return Selected; }
    void SelectRow(std::size_t row) override { Tell("select " + std::to_string(row)); }
    void CommentsAreChanged() override { Tell("comments"); }
    void CommentsAreSafe(std::error_code error) override { Safe = !error; }
    void NumbersOfOthersHide(const NumbersOfOthers& numbers) override { OfOthers.push_back(numbers); }

    std::vector<std::string> TakeSteps() { return std::exchange(Steps, {}); }

    ScriptedUser Person;
    RecordingProgress Reading;
    std::optional<EntryNumber> Selected;
    std::vector<std::string> Steps;
    std::vector<NumbersOfOthers> OfOthers;
    bool Safe = true;

  private:
    void Tell(std::string step) { Steps.push_back(std::move(step)); }
};

class LogbookDocumentTest : public testing::Test {
  protected:
    LogbookDocumentTest() {
        Document = MakeDocument();
        Document->ShowIn(View);
    }

    std::unique_ptr<LogbookDocument> MakeDocument() { return MakeDocument(Folder.Path() / "state"); }
    std::unique_ptr<LogbookDocument> MakeDocument(const std::filesystem::path& journalFolder) {
        return std::make_unique<LogbookDocument>(
            LogbookDocument::Surroundings{.Filters = Filters, .Settings = Settings, .Temp = Temp}, CodePage(),
            journalFolder);
    }

    // A crash: the comments stay as they are noted.
    void StartAnew() {
        Document = MakeDocument();
        Document->ShowIn(View);
        View.Steps.clear();
    }

    std::string LogOf(int entries) {
        std::vector<std::string> lines;
        for (int i = 0; i < entries; ++i)
            lines.push_back(Header("BERR:    E" + std::to_string(i)));
        return Folder.Write("a.log", Lines(lines));
    }

    void StoreFilter(const std::string& filter) {
        FilterLists lists = LoadFilters(Settings, {});
        lists.Filters = DefaultFilters();
        FilterDefinition definition;
        definition.Active = true;
        definition.Action = FilterActions::Exclude;
        definition.StringFilter = filter;
        lists.Filters.push_back(definition);
        SaveFilters(Settings, lists, "");
    }

    std::string LogNamed(const std::string& name, int entries) {
        std::vector<std::string> lines;
        for (int i = 0; i < entries; ++i)
            lines.push_back(Header("BERR:    " + name + std::to_string(i)));
        return Folder.Write(name + ".log", Lines(lines));
    }

    // The person stores filters, as the filter dialog does.
    void StoreByDialog(const std::vector<std::string>& texts) {
        FilterLists lists = LoadFilters(Settings, {});
        const std::vector<FilterDefinition> before = lists.Filters;
        lists.Filters.clear();
        for (const std::string& text : texts)
            ParseFilter(text, lists.Filters.emplace_back());
        SaveFilters(Settings, lists, "");
        Document->FiltersAreChanged(before, lists.Filters);
    }

    TemporaryFolder Folder;
    TempFolder Temp{Folder.Path()};
    MemorySettings Store;
    Registry Settings{Store};
    StoredActiveFilters Filters{Settings};
    RecordingView View;
    std::unique_ptr<LogbookDocument> Document;
};

TEST_F(LogbookDocumentTest, OpensALogbookStepByStep) {
    EXPECT_TRUE(Document->OpenLogbook(LogOf(3)));
    EXPECT_THAT(View.Steps,
                ElementsAre("rows", "reading", "read a.log", "rows", "ended", "counts", "open a"));
    EXPECT_EQ(Document->Rows().size(), 3U);
    EXPECT_EQ(Document->Entries().Count(), 3U);
    EXPECT_FALSE(Document->Book().Busy);
    EXPECT_THAT(View.Person.Statuses, ElementsAre(TextId::StatusReading, TextId::StatusFiltering));
    EXPECT_EQ(View.Person.StatusDepth, 0);
    EXPECT_THAT(View.Person.Messages, IsEmpty());
}

TEST_F(LogbookDocumentTest, CommandLineGoesTheSameWay) {
    const std::string log = LogOf(3);
    Document->OpenLogbook(log);
    const std::vector<std::string> byMenu = View.TakeSteps();
    Document->RunCommandLine({log});
    EXPECT_EQ(View.TakeSteps(), byMenu);
    Document->RunCommandLine({"-help"});
    EXPECT_EQ(View.Person.Messages.size(), 1U);
    EXPECT_THAT(View.TakeSteps(), IsEmpty());
    EXPECT_EQ(Document->Rows().size(), 3U);
}

TEST_F(LogbookDocumentTest, MissingFileGivesNoRowsWithoutAMessage) {
    EXPECT_TRUE(Document->OpenLogbook((Folder.Path() / "none.log").string()));
    EXPECT_THAT(Document->Rows(), IsEmpty());
    EXPECT_THAT(View.Person.Messages, IsEmpty());
    EXPECT_THAT(View.Steps, ElementsAre("rows", "reading", "ended", "counts", "open none"));
}

TEST_F(LogbookDocumentTest, FailuresAreReportedInTheirOrder) {
    EXPECT_FALSE(Document->OpenLogbook(Folder.Write("a.log", "nothing")));
    EXPECT_THAT(View.TakeSteps(), ElementsAre("rows", "reading", "read a.log", "rows", "ended", "counts",
                                              "message", "failed", "state 3"));
    const std::string damaged = Folder.Write("b.log", Lines({"RESET:", std::string(100, ' ')}));
    EXPECT_FALSE(Document->OpenLogbook(damaged));
    EXPECT_THAT(View.TakeSteps(), ElementsAre("rows", "reading", "ended", "counts", "message", "state 2"));
    EXPECT_THAT(View.Person.Messages, IsEmpty());
}

TEST_F(LogbookDocumentTest, FilesTakeThePlaceOfThoseOfTheSource) {
    const std::string archive = Folder / "own.qorvix";
    WriteZip(archive, {{"x.log", Lines({Header("BERR:    a"), Header("BERR:    b")})},
                       {"x.fil", "[Filters]\r\nI|7||||1\r\n"},
                       {"x.cmt", "[Comments]\r\n 0 archived\r\n"}});
    const std::string comments = Folder.Write("own.cmt", "[Comments]\r\n 1 given\r\n");
    const std::string filters = Folder.Write("own.fil", "[Filters]\r\nI|0||||1\r\nX|0|||0|1\r\n");
    View.Person.Answers = {Answer::Yes};
    EXPECT_TRUE(Document->OpenLogbook(archive, {.Comments = comments, .Filters = filters}));
    EXPECT_EQ(Document->Entries().Comments().size(), 1U);
    EXPECT_EQ(Document->Entries().Comment(1), "given");
    EXPECT_EQ(LoadFilterList(Settings).Filters.size(), 2U);

    View.TakeSteps();
    View.Person.Answers = {Answer::No};
    EXPECT_TRUE(Document->OpenLogbook(archive, {.Comments = filters}));
    EXPECT_THAT(View.Steps, testing::Contains("no comments of " + filters));
    EXPECT_THAT(Document->Entries().Comments(), IsEmpty());
    View.Person.Answers = {Answer::No};
    EXPECT_TRUE(Document->OpenLogbook(archive));
    EXPECT_EQ(Document->Entries().Comment(0), "archived");
}

TEST_F(LogbookDocumentTest, FiltersOfARunLeaveTheSettingsAsTheyAre) {
    StoreFilter("E0");
    ActiveFiltersOfRun filters(DefaultFilters());
    Document = std::make_unique<LogbookDocument>(
        LogbookDocument::Surroundings{.Filters = filters, .Settings = Settings, .Temp = Temp}, CodePage(),
        Folder.Path() / "state");
    Document->ShowIn(View);
    const std::string log = LogOf(3);
    EXPECT_TRUE(Document->OpenLogbook(log));
    EXPECT_EQ(Document->Rows().size(), 3U);
    // Longer than the settings can keep.
    const std::string longText(2000, 'E');
    const std::string own = Folder.Write("own.fil", "[Filters]\r\nI|0||||1\r\nX|0||" + longText + "||1\r\n");
    EXPECT_TRUE(Document->OpenLogbook(log, {.Filters = own}));
    EXPECT_THAT(View.Person.Messages, IsEmpty());
    EXPECT_EQ(filters.Load().size(), 2U);
    EXPECT_EQ(LoadFilterList(Settings).Filters[1].StringFilter, "E0");

    StoredActiveFilters stored(Settings);
    EXPECT_FALSE(stored.Replace(filters.Load(), {}));
    EXPECT_EQ(stored.Load()[1].StringFilter, "E0");
}

TEST_F(LogbookDocumentTest, WithoutAJournalNothingIsNotedOrOffered) {
    const std::string log = LogOf(3);
    Document->OpenLogbook(log);
    Document->ChangeComment(1, "pump");
    StartAnew();
    Document = MakeDocument({});
    Document->ShowIn(View);
    Document->OpenLogbook(log);
    EXPECT_THAT(View.Person.Questions, IsEmpty());
    const auto before = ItemsIn(std::filesystem::current_path());
    Document->ChangeComment(2, "valve");
    EXPECT_EQ(ItemsIn(std::filesystem::current_path()), before);
    EXPECT_FALSE(View.Safe);
    View.Person.Answers = {Answer::Yes};
    StartAnew();
    Document->OpenLogbook(log);
    EXPECT_EQ(Document->Entries().Comment(1), "pump");
}

TEST_F(LogbookDocumentTest, StoppedReadSaysNothingMore) {
    View.Reading.StopAfterRounds = 1;
    EXPECT_FALSE(Document->OpenLogbook(LogOf(1000)));
    EXPECT_EQ(Document->Book().LoadState, LoadStates::Reading);
    EXPECT_THAT(View.Person.Messages, IsEmpty());
    EXPECT_FALSE(Document->Book().Busy);
    EXPECT_THAT(View.Steps, ElementsAre("rows", "reading", "ended", "counts", "message"));
}

TEST_F(LogbookDocumentTest, BusyDocumentCarriesOutNothing) {
    const std::string log = LogOf(3);
    Document->Book().Busy = true;
    EXPECT_FALSE(Document->OpenLogbook(log));
    EXPECT_FALSE(Document->ReadAndShowLogbook(log, ""));
    Document->ApplyFilter();
    EXPECT_THAT(View.Steps, IsEmpty());
}

TEST_F(LogbookDocumentTest, FilterRunSelectsTheNextRow) {
    Document->OpenLogbook(LogOf(4));
    View.Steps.clear();
    View.Selected = 2;
    Document->ApplyFilter();
    EXPECT_THAT(View.TakeSteps(), ElementsAre("filtering", "rows", "select 2", "filtered", "counts"));
    StoreFilter("E2");
    Document->ApplyFilter();
    EXPECT_THAT(View.TakeSteps(), ElementsAre("filtering", "rows", "select 2", "filtered", "counts"));
    ASSERT_EQ(Document->Rows().size(), 3U);
    EXPECT_EQ(Document->Rows()[2].Entry, 3U);
}

TEST_F(LogbookDocumentTest, SaysWhyEntriesAreHidden) {
    EXPECT_EQ(Document->Hidden(), std::nullopt);
    StoreByDialog({"I|0||||1", "X|0|E2|||1", "X|8|0|||1"});
    Document->OpenLogbook(LogOf(6));
    HiddenEntries hidden;
    hidden.Counts[HiddenEntries::ByText] = 1;
    hidden.Counts[HiddenEntries::ByNumber] = 1;
    EXPECT_EQ(Document->Hidden(), hidden);

    // Rows that are taken out in place.
    RemoveFromList(Settings, Document->Rows(), {{1, 2}});
    Document->Rows().erase(Document->Rows().begin() + 1, Document->Rows().begin() + 3);
    hidden.Counts[HiddenEntries::ByNumber] = 3;
    EXPECT_EQ(Document->Hidden(), hidden);
    Document->ApplyFilter();
    EXPECT_EQ(Document->Hidden(), hidden);

    // What others store counts from the next run on.
    StoreFilter("E5");
    EXPECT_EQ(Document->Hidden(), hidden);
    Document->ApplyFilter();
    hidden = {};
    hidden.Counts[HiddenEntries::ByText] = 1;
    EXPECT_EQ(Document->Hidden(), hidden);
}

TEST_F(LogbookDocumentTest, NothingIsHiddenByARunThatWasNotMade) {
    StoreFilter("E0");
    Document->OpenLogbook(LogOf(3));
    Document->Book().Busy = true;
    EXPECT_EQ(Document->Hidden(), std::nullopt);
    Document->Book().Busy = false;
    EXPECT_NE(Document->Hidden(), std::nullopt);
    Document->OpenLogbook((Folder.Path() / "none.log").string());
    EXPECT_EQ(Document->Hidden(), std::nullopt);
    // A file that is no logbook ends the run.
    Document->OpenLogbook(Folder.Write("b.log", "nothing"));
    ASSERT_NE(Document->Hidden(), std::nullopt);
    EXPECT_EQ(Document->Hidden()->Counts[HiddenEntries::NotReached], 1U);
}

TEST_F(LogbookDocumentTest, KnowsTheFiltersInForce) {
    EXPECT_TRUE(IsAllEntries(Document->FiltersInForce()));
    StoreFilter("E0");
    EXPECT_TRUE(IsAllEntries(Document->FiltersInForce()));
    StartAnew();
    EXPECT_FALSE(IsAllEntries(Document->FiltersInForce()));
    StoreByDialog({"I|0||||1"});
    EXPECT_TRUE(IsAllEntries(Document->FiltersInForce()));
    StoreFilter("E0");
    EXPECT_TRUE(IsAllEntries(Document->FiltersInForce()));
    Document->OpenLogbook(LogOf(3));
    EXPECT_FALSE(IsAllEntries(Document->FiltersInForce()));

    // Those of an archive are in force even where its logbook cannot be read.
    const std::string archive = Folder / "own.qorvix";
    WriteZip(archive,
             {{"x.log", Lines({"RESET:", std::string(100, ' ')})}, {"x.fil", "[Filters]\r\nI|0||||1\r\n"}});
    View.Person.Answers = {Answer::Yes};
    EXPECT_FALSE(Document->OpenLogbook(archive));
    EXPECT_TRUE(IsAllEntries(Document->FiltersInForce()));
}

TEST_F(LogbookDocumentTest, NumbersOfAnotherLogbookAreTold) {
    const std::string one = LogNamed("one", 10);
    const std::string two = LogNamed("two", 8);
    Document->OpenLogbook(one);
    StoreByDialog({"I|0||||1", "X|8|2,5-20|||1", "X|0|two3|||1"});
    Document->ApplyFilter();
    EXPECT_THAT(View.OfOthers, IsEmpty());
    Document->OpenLogbook(one);
    Document->RunCommandLine({one});
    EXPECT_THAT(View.OfOthers, IsEmpty());

    Document->OpenLogbook(two);
    EXPECT_THAT(View.OfOthers, ElementsAre(NumbersOfOthers{.Hidden = 4, .Perhaps = false}));
    // Once: neither the next run nor a refresh says it again.
    Document->ApplyFilter();
    Document->Refresh();
    EXPECT_EQ(View.OfOthers.size(), 1U);
    // Another change does not make them this logbook's.
    StoreByDialog({"I|0||||1", "X|8|2,5-20|||1"});
    StartAnew();
    Document->RunCommandLine({one, two});
    EXPECT_EQ(View.OfOthers.size(), 2U);
    // A change of numbers does.
    StoreByDialog({"I|0||||1", "X|8|2,5-21|||1"});
    Document->OpenLogbook(two);
    EXPECT_EQ(View.OfOthers.size(), 2U);
    Document->OpenLogbook(one);
    EXPECT_EQ(View.OfOthers.size(), 3U);
}

TEST_F(LogbookDocumentTest, NumbersStayThoseOfALogbookThatGrows) {
    Document->OpenLogbook(LogNamed("one", 10));
    StoreByDialog({"I|0||||1", "X|8|2|||1"});
    LogNamed("one", 12);
    Document->Refresh();
    EXPECT_EQ(Document->Rows().size(), 11U);
    StartAnew();
    Document->OpenLogbook(LogNamed("one", 14));
    EXPECT_THAT(View.OfOthers, IsEmpty());
}

TEST_F(LogbookDocumentTest, NumbersThatHideNothingAreNotTold) {
    Document->OpenLogbook(LogNamed("one", 10));
    StoreByDialog({"I|0||||1", "X|8|8-9|||1", "H|8|1|||1"});
    Document->OpenLogbook(LogNamed("two", 8));
    EXPECT_THAT(View.OfOthers, IsEmpty());
}

TEST_F(LogbookDocumentTest, NumbersOfAnUnknownLogbookArePerhapsAnothers) {
    // Settings as an earlier version left them, or filters that were edited without a logbook.
    StoreByDialog({"I|8|2-3|||1"});
    Document->OpenLogbook(LogNamed("one", 10));
    EXPECT_THAT(View.OfOthers, ElementsAre(NumbersOfOthers{.Hidden = 8, .Perhaps = true}));
    StoreByDialog({"I|8|2-4|||1"});
    StartAnew();
    StoreByDialog({"I|8|2-3|||1"});
    Document->OpenLogbook(LogNamed("one", 10));
    EXPECT_EQ(View.OfOthers.size(), 2U);
}

TEST_F(LogbookDocumentTest, FiltersThatCameWithALogbookBelongToIt) {
    Document->OpenLogbook(LogNamed("one", 10));
    StoreByDialog({"I|0||||1", "X|8|2|||1"});
    const std::string archive = Folder / "own.qorvix";
    const std::string log = Lines({Header("BERR:    a"), Header("BERR:    b"), Header("BERR:    c")});
    WriteZip(archive, {{"x.log", log}, {"x.fil", "[Filters]\r\nI|0||||1\r\nX|8|1|||1\r\n"}});
    View.Person.Answers = {Answer::Yes};
    EXPECT_TRUE(Document->OpenLogbook(archive));
    EXPECT_EQ(Document->Rows().size(), 2U);
    EXPECT_THAT(View.OfOthers, IsEmpty());
    EXPECT_TRUE(Document->OpenLogbook(Folder.Write("x.log", log)));
    EXPECT_THAT(View.OfOthers, IsEmpty());
    EXPECT_TRUE(Document->OpenLogbook(LogNamed("one", 10)));
    EXPECT_THAT(View.OfOthers, ElementsAre(NumbersOfOthers{.Hidden = 1, .Perhaps = false}));
}

TEST_F(LogbookDocumentTest, FiltersOfARunAreForTheLogbookAtHand) {
    ActiveFiltersOfRun filters(DefaultFilters());
    std::vector<FilterDefinition> numbers = DefaultFilters();
    ParseFilter("X|8|1|||1", numbers.emplace_back());
    filters.Replace(numbers, {});
    Document = std::make_unique<LogbookDocument>(
        LogbookDocument::Surroundings{.Filters = filters, .Settings = Settings, .Temp = Temp}, CodePage(),
        Folder.Path() / "state");
    Document->ShowIn(View);
    Document->OpenLogbook(LogOf(3));
    EXPECT_EQ(Document->Rows().size(), 2U);
    EXPECT_THAT(View.OfOthers, IsEmpty());
}

TEST(NumbersOfOthers, AreToldInBothLanguages) {
    EXPECT_EQ(NumbersOfOthersText({.Hidden = 1200, .Perhaps = false}, {}),
              "Number filters of another logbook hide 1,200 entries.");
    EXPECT_EQ(NumbersOfOthersText({.Hidden = 1, .Perhaps = true}, {}),
              "Number filters, perhaps of another logbook, hide 1 entry.");
    EXPECT_EQ(NumbersOfOthersText({.Hidden = 12, .Perhaps = false}, {Language::German}),
              "Nummernfilter eines anderen Logbuchs blenden 12 Einträge aus.");
    EXPECT_EQ(NumbersOfOthersText({.Hidden = 1, .Perhaps = true}, {Language::German}),
              "Nummernfilter, vielleicht eines anderen Logbuchs, blenden 1 Eintrag aus.");
}

TEST_F(LogbookDocumentTest, CommentsOfACrashAreOffered) {
    const std::string log = LogOf(3);
    Document->OpenLogbook(log);
    Document->ChangeComment(1, "pump");
    EXPECT_TRUE(View.Safe);
    StartAnew();
    View.Person.Answers = {Answer::Yes};
    Document->OpenLogbook(log);
    EXPECT_THAT(View.Person.Questions, ElementsAre(TextId::AskRestoreComments));
    EXPECT_EQ(Document->Entries().Comment(1), "pump");
    EXPECT_EQ(View.Steps.back(), "comments");
}

TEST_F(LogbookDocumentTest, CommentThatIsNotSafeIsReported) {
    Document = MakeDocument("/dev/null/state");
    Document->ShowIn(View);
    Document->OpenLogbook(LogOf(3));
    Document->ChangeComment(1, "pump");
    EXPECT_FALSE(View.Safe);
    EXPECT_EQ(Document->Entries().Comment(1), "pump");
}

TEST_F(LogbookDocumentTest, RefreshReadsAgainWithoutComments) {
    Document->OpenLogbook(LogOf(3));
    Document->ChangeComment(1, "pump");
    LogOf(5);
    View.Person.Answers = {Answer::Cancel};
    Document->Refresh();
    EXPECT_EQ(Document->Rows().size(), 3U);
    View.Person.Answers = {Answer::No};
    Document->Refresh();
    EXPECT_EQ(Document->Rows().size(), 5U);
    EXPECT_THAT(Document->Entries().Comments(), IsEmpty());
    EXPECT_THAT(View.Person.Questions, ElementsAre(TextId::AskSaveComments, TextId::AskSaveComments));
}

TEST_F(LogbookDocumentTest, SavesAndOpensItsArchive) {
    Document->OpenLogbook(LogOf(3));
    StoreFilter("E0");
    Document->ApplyFilter();
    Document->ChangeComment(1, "pump");
    EXPECT_FALSE(Document->ZipLogbook()); // no name
    View.Person.File = Folder / "a.qorvix";
    EXPECT_TRUE(Document->ZipLogbook());
    ASSERT_EQ(ReadZip(Folder / "a.qorvix").size(), 3U);
    EXPECT_TRUE(Document->Close());
    EXPECT_THAT(View.Person.Questions, IsEmpty());

    SaveFilters(Settings, {DefaultFilters(), {}}, "");
    StartAnew();
    View.Person.Answers = {Answer::Yes}; // its filters
    EXPECT_TRUE(Document->OpenLogbook(Folder / "a.qorvix"));
    EXPECT_EQ(Document->Rows().size(), 2U);
    EXPECT_EQ(Document->Entries().Comment(1), "pump");
    EXPECT_EQ(LoadFilters(Settings, {}).Filters.size(), 2U);
}

TEST_F(LogbookDocumentTest, ClosingAsksAboutEditedComments) {
    const std::string log = LogOf(3);
    Document->OpenLogbook(log);
    EXPECT_TRUE(Document->Close());
    Document->ChangeComment(1, "pump");
    View.Person.Answers = {Answer::Cancel};
    EXPECT_FALSE(Document->Close());
    // Wanted but not saved: the journal keeps them.
    View.Person.Answers = {Answer::Yes};
    EXPECT_TRUE(Document->Close());
    StartAnew();
    View.Person.Answers = {Answer::Yes};
    Document->OpenLogbook(log);
    EXPECT_EQ(Document->Entries().Comment(1), "pump");
    // Not wanted: gone.
    View.Person.Answers = {Answer::No};
    EXPECT_TRUE(Document->Close());
    StartAnew();
    View.Person.Questions.clear();
    Document->OpenLogbook(log);
    EXPECT_THAT(View.Person.Questions, IsEmpty());
}

} // namespace
