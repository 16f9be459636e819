// SPDX-License-Identifier: MIT
// Comments that are noted and offered when memory runs out: each that was noted with success survives a
// crash.
#include "comments/CommentJournalFixture.h"
#include "faults/FailingMemory.h"

namespace {

namespace fs = std::filesystem;
using Answer = UserInterface::Answer;
using ByNumber = std::map<EntryNumber, std::string>;

// Too long for a short string.
constexpr const char* First = "the pump was replaced in the morning";
constexpr const char* Second = "the \"other\" pump, too, an hour later";
constexpr const char* Third = "and the filter after both of them";

class CommentJournalMemory : public CommentJournalFixture {
  protected:
    void Prepare(const ByNumber& noted) {
        Noting.reset();
        fs::remove_all(State);
        FillTable(Book, Entries(5));
        Noting = std::make_unique<CommentJournal>(State);
        for (const auto& [number, comment] : noted)
            EXPECT_FALSE(Enter(*Noting, number, comment));
    }

    bool Note(EntryNumber number) { return !Noting->Note(Book, std::span(&number, 1)); }

    // The comments that a crash would leave in this moment.
    ByNumber Left() const {
        const fs::path copy = Folder.Path() / "copy";
        fs::remove_all(copy);
        std::error_code none;
        fs::copy(State, copy, none);
        EntryTable book;
        FillTable(book, Entries(5));
        return LostComments(copy, book).Comments();
    }

    // Notes entry 1 behind these, and then entry 2 with memory.
    void NoteSecond(
        const ByNumber& noted, const std::function<void()>& between = [] {}) {
        AtEveryAllocation(
            [&] {
                Prepare(noted);
                between();
                Book.SetComment(1, Second);
            },
            [&] { return Note(1); },
            [&](WorkOutcome outcome) {
                // Who noted comments is told of an error, not thrown at.
                EXPECT_NE(outcome, WorkOutcome::OutOfMemory);
                ByNumber expected = noted;
                expected[1] = Second;
                if (outcome == WorkOutcome::Done) {
                    EXPECT_EQ(Left(), expected);
                }
                expected[2] = Third;
                // As long as the journal may lack a comment, it says so.
                if (!Enter(*Noting, 2, Third)) {
                    EXPECT_EQ(Left(), expected);
                }
                EXPECT_EQ(Left().at(2), Third);
                EXPECT_EQ(Files().size(), 1U);
                Noting->Saved();
                EXPECT_EQ(Files().size(), 0U);
            });
    }

    std::unique_ptr<CommentJournal> Noting;
};

} // namespace

TEST_F(CommentJournalMemory, FirstCommentIsNotedOrTheNextNotesBoth) { NoteSecond({}); }

TEST_F(CommentJournalMemory, FurtherCommentLeavesTheOthersInTheFile) {
    AtEveryAllocation(
        [&] {
            Prepare({{0, First}});
            Book.SetComment(1, Second);
        },
        [&] { return Note(1); }, [&](WorkOutcome) { EXPECT_EQ(Left()[0], First); });
    NoteSecond({{0, First}});
}

TEST_F(CommentJournalMemory, FileThatWasRemovedIsMadeAgainWithAllComments) {
    NoteSecond({{0, First}}, [&] { fs::remove(Files().front()); });
}

TEST_F(CommentJournalMemory, SavedNeedsNoMemory) {
    const std::size_t allocations = AtEveryAllocation(
        [&] {
            Prepare({{0, First}});
        },
        [&] {
            Noting->Saved();
            return true;
        },
        [&](WorkOutcome) { EXPECT_EQ(Files().size(), 0U); });
    EXPECT_EQ(allocations, 0U);
}

TEST_F(CommentJournalMemory, LostCommentsAreReadToTheirEndOrStay) {
    const ByNumber all{{0, First}, {1, Second}, {3, Third}};
    std::optional<LostComments> lost;
    AtEveryAllocation(
        [&] {
            Prepare(all);
            Noting.reset();
            FillTable(Book, Entries(5));
        },
        [&] {
            lost.emplace(State, Book);
            return true;
        },
        [&](WorkOutcome outcome) {
            // A journal that could not be read is not held, so that saving does not remove it.
            if (outcome == WorkOutcome::Done && lost->TakeJournals().size() == 1) {
                EXPECT_EQ(lost->Comments(), all);
            }
            lost.reset();
            EXPECT_EQ(LostComments(State, Book).Comments(), all);
        });
}

TEST_F(CommentJournalMemory, OfferedCommentsAreInTheListOrStay) {
    const ByNumber all{{0, First}, {1, Second}, {3, Third}};
    AtEveryAllocation(
        [&] {
            Prepare(all);
            Noting = std::make_unique<CommentJournal>(State);
            FillTable(Book, Entries(5));
            Known = {};
            User = {};
            User.Answers = {Answer::Yes};
        },
        [&] { return OfferLostComments(Book, Known, *Noting, User) || User.Questions.empty(); },
        [&](WorkOutcome outcome) {
            EXPECT_EQ(Left(), all);
            const bool restored = outcome == WorkOutcome::Done && Known.CommentsEdited;
            if (restored) {
                EXPECT_EQ(Book.Comments(), all);
            }
            // Nobody is asked about comments that do not count as edited; they go without being saved.
            if (!Known.CommentsEdited)
                Noting->Dropped();
            else if (!restored)
                Noting.reset();
            else
                Noting->Saved();
            EXPECT_EQ(Left(), restored ? ByNumber() : all);
        });
}
