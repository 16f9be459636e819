// SPDX-License-Identifier: MIT
#include "filter/FilterHistory.h"

#include "filter/FilterStorage.h"
#include "filter/FiltersFromEntries.h"
#include "settings/Registry.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

#include <random>

namespace {

class FilterHistoryTest : public testing::Test {
  protected:
    void Remove(std::vector<EntryNumber> numbers) {
        Collect(FilterHistory::Act::Remove, FilterActions::Exclude, numbers);
    }
    void Highlight(std::vector<EntryNumber> numbers) {
        Collect(FilterHistory::Act::ToggleHighlighting, FilterActions::Highlight, numbers);
    }
    std::vector<FilterDefinition> Stored() const { return LoadFilterList(Settings).Filters; }
    void Edit() { AddEntryToFilter(Settings, 999, FilterActions::Exclude); }

    MemorySettings Store;
    Registry Settings{Store};
    FilterHistory History{Settings};

  private:
    void Collect(FilterHistory::Act act, std::int16_t action, const std::vector<EntryNumber>& numbers) {
        History.Record(act, [&] {
            NumberFilters filters(Settings, action);
            for (const EntryNumber number : numbers)
                filters.Add(number);
            filters.Write();
        });
    }
};

} // namespace

TEST_F(FilterHistoryTest, StepsAreTakenBackAndMadeAgain) {
    const auto atFirst = Stored();
    Remove({3, 5});
    const auto removed = Stored();
    Highlight({8});
    const auto both = Stored();
    EXPECT_EQ(History.ToUndo(), FilterHistory::Act::ToggleHighlighting);
    EXPECT_EQ(History.ToRedo(), std::nullopt);
    EXPECT_EQ(History.Undo(), FilterHistory::Outcome::Done);
    EXPECT_EQ(Stored(), removed);
    EXPECT_EQ(History.ToUndo(), FilterHistory::Act::Remove);
    EXPECT_EQ(History.ToRedo(), FilterHistory::Act::ToggleHighlighting);
    EXPECT_EQ(History.Undo(), FilterHistory::Outcome::Done);
    EXPECT_EQ(Stored(), atFirst);
    EXPECT_EQ(History.Undo(), FilterHistory::Outcome::Nothing);
    EXPECT_EQ(History.Redo(), FilterHistory::Outcome::Done);
    EXPECT_EQ(Stored(), removed);
    EXPECT_EQ(History.Redo(), FilterHistory::Outcome::Done);
    EXPECT_EQ(Stored(), both);
    EXPECT_EQ(History.Redo(), FilterHistory::Outcome::Nothing);
}

TEST_F(FilterHistoryTest, TellsEveryChangeThatItMakes) {
    using Lists = std::pair<std::vector<FilterDefinition>, std::vector<FilterDefinition>>;
    std::vector<Lists> told;
    FilterHistory history(Settings,
                          [&](const auto& before, const auto& after) { told.emplace_back(before, after); });
    const auto atFirst = Stored();
    history.Record(FilterHistory::Act::Remove, [] {});
    EXPECT_TRUE(told.empty());
    history.Record(FilterHistory::Act::Remove, [this] { Edit(); });
    const auto removed = Stored();
    EXPECT_EQ(told, std::vector{Lists(atFirst, removed)});
    history.Undo();
    history.Undo();
    history.Redo();
    EXPECT_EQ(told, (std::vector{Lists(atFirst, removed), Lists(removed, atFirst), Lists(atFirst, removed)}));
    Edit();
    Remove({3});
    EXPECT_EQ(history.Undo(), FilterHistory::Outcome::ChangedElsewhere);
    EXPECT_EQ(told.size(), 3U);
}

TEST_F(FilterHistoryTest, NewStepForgetsThoseThatWereTakenBack) {
    Remove({3});
    History.Undo();
    Remove({4});
    EXPECT_EQ(History.ToRedo(), std::nullopt);
    EXPECT_EQ(History.Undo(), FilterHistory::Outcome::Done);
    EXPECT_EQ(History.Undo(), FilterHistory::Outcome::Nothing);
}

TEST_F(FilterHistoryTest, ChangeThatChangesNothingIsNoStep) {
    History.Record(FilterHistory::Act::Remove, [] {});
    EXPECT_EQ(History.ToUndo(), std::nullopt);
}

TEST_F(FilterHistoryTest, ChangeElsewhereStaysAsItIs) {
    Remove({3});
    Edit();
    const auto edited = Stored();
    EXPECT_EQ(History.Undo(), FilterHistory::Outcome::ChangedElsewhere);
    EXPECT_EQ(Stored(), edited);
    // A step behind it can be taken back, those before it cannot.
    Remove({7});
    EXPECT_EQ(History.Undo(), FilterHistory::Outcome::Done);
    EXPECT_EQ(Stored(), edited);
    EXPECT_EQ(History.Undo(), FilterHistory::Outcome::ChangedElsewhere);
    EXPECT_EQ(Stored(), edited);
    EXPECT_EQ(History.Redo(), FilterHistory::Outcome::Done);
    History.Undo();
    Remove({8});
    EXPECT_EQ(History.Undo(), FilterHistory::Outcome::Done);
    EXPECT_EQ(History.Undo(), FilterHistory::Outcome::ChangedElsewhere);
    History.Clear();
    EXPECT_EQ(History.Undo(), FilterHistory::Outcome::Nothing);
    EXPECT_EQ(History.Redo(), FilterHistory::Outcome::Nothing);
}

// Against the whole lists, kept as they stood.
// A list with a filter that cannot be read counts as the default list, and what is made of entries replaces
// it.
TEST_F(FilterHistoryTest, ListThatCouldNotBeReadComesBack) {
    const std::vector<std::string> damaged{"X|2|a|b|c|d|e|1", "H|8|1-5|||1", "I|0||||1"};
    for (std::size_t i = 0; i < damaged.size(); ++i)
        WriteFilterText(Settings, i, damaged[i]);
    WriteFilterCount(Settings, damaged.size());
    EXPECT_FALSE(LoadFilterList(Settings).IsStored);
    Remove({3});
    EXPECT_TRUE(LoadFilterList(Settings).IsStored);
    EXPECT_EQ(History.Undo(), FilterHistory::Outcome::Done);
    EXPECT_EQ(StoredFilterTexts(Settings), damaged);
    EXPECT_EQ(History.Redo(), FilterHistory::Outcome::Done);
    EXPECT_EQ(Stored().size(), 2U);
}

TEST_F(FilterHistoryTest, MissingListIsMissingAgain) {
    Remove({3});
    EXPECT_EQ(History.Undo(), FilterHistory::Outcome::Done);
    EXPECT_TRUE(StoredFilterTexts(Settings).empty());
    EXPECT_EQ(History.Redo(), FilterHistory::Outcome::Done);
    EXPECT_EQ(Stored().back().StringFilter, "3");
}

TEST_F(FilterHistoryTest, AnySequenceRestoresTheListsAsTheyStood) {
    for (unsigned seed = 0; seed < 30; ++seed) {
        std::mt19937 random(seed);
        Settings.DeleteFilterKey();
        History.Clear();
        struct Lists {
            std::vector<FilterDefinition> Before;
            std::vector<FilterDefinition> After;
        };
        std::vector<Lists> steps;
        std::size_t done = 0;
        for (int order = 0; order < 80; ++order) {
            const auto before = Stored();
            switch (random() % 6) {
            case 0:
                Edit();
                break;
            case 1:
            case 2: {
                const bool may = done > 0 && steps[done - 1].After == before;
                EXPECT_EQ(History.Undo(), done == 0 ? FilterHistory::Outcome::Nothing
                                          : may     ? FilterHistory::Outcome::Done
                                                    : FilterHistory::Outcome::ChangedElsewhere);
                EXPECT_EQ(Stored(), may ? steps[--done].Before : before);
                break;
            }
            case 3: {
                const bool may = done < steps.size() && steps[done].Before == before;
                EXPECT_EQ(History.Redo(), done == steps.size() ? FilterHistory::Outcome::Nothing
                                          : may                ? FilterHistory::Outcome::Done
                                                               : FilterHistory::Outcome::ChangedElsewhere);
                EXPECT_EQ(Stored(), may ? steps[done++].After : before);
                break;
            }
            default: {
                std::vector<EntryNumber> numbers;
                // Scattered ones, so that a list goes on in further filters.
                for (std::size_t i = random() % 2 == 0 ? 1 : 300; i-- > 0;)
                    numbers.push_back(static_cast<EntryNumber>(random() % 100000));
                if (random() % 2 == 0)
                    Remove(numbers);
                else
                    Highlight(numbers);
                if (Stored() == before)
                    break;
                steps.resize(done);
                steps.push_back({before, Stored()});
                ++done;
                break;
            }
            }
        }
    }
}
