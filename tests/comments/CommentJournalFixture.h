// SPDX-License-Identifier: MIT
#pragma once

#include "comments/LogbookChecksum.h"
#include "comments/LostComments.h"
#include "document/OpenLogbook.h"
#include "support/EntriesFrom.h"
#include "support/ScriptedUser.h"
#include "support/SmallFiles.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fstream>
#include <memory>

// Lines that differ in their data alone.
inline std::vector<TestEntry> Entries(int count) {
    std::vector<TestEntry> entries;
    for (int i = 0; i < count; ++i)
        entries.push_back({EventTypes::Info, "data " + std::to_string(i), "NC", "name"});
    return entries;
}

// A logbook of five entries, and where its comments are noted.
class CommentJournalFixture : public testing::Test {
  protected:
    CommentJournalFixture() { FillTable(Book, Entries(5)); }

    std::error_code Enter(CommentJournal& journal, EntryNumber number, std::string_view comment) {
        Book.SetComment(number, comment);
        return journal.Note(Book, std::span(&number, 1));
    }

    // What a crash leaves of these comments; the logbook is then as it was read.
    void Crash(const std::vector<std::pair<EntryNumber, std::string>>& comments) {
        CommentJournal journal(State);
        for (const auto& [number, comment] : comments)
            EXPECT_FALSE(Enter(journal, number, comment));
        FillTable(Book, Entries(5));
    }

    std::vector<std::filesystem::path> Files() const {
        std::vector<std::filesystem::path> files;
        std::error_code none;
        for (const auto& item : std::filesystem::directory_iterator(State, none))
            files.push_back(item.path());
        return files;
    }

    bool Offer(std::deque<UserInterface::Answer> answers = {}) {
        User.Answers = std::move(answers);
        return OfferLostComments(Book, Known, Journal, User);
    }

    TemporaryFolder Folder;
    std::filesystem::path State = Folder.Path() / "state" / "Qorvix";
    EntryTable Book;
    LogbookState Known;
    ScriptedUser User;
    CommentJournal Journal{State};
};
