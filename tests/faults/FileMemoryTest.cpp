// SPDX-License-Identifier: MIT
// Filter files and comments files that are written and read when memory runs out.
#include "comments/Comments.h"
#include "faults/FailingMemory.h"
#include "filter/FilterFile.h"
#include "support/EntriesFrom.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <functional>

namespace {

namespace fs = std::filesystem;
using testing::AnyOf;
using testing::Eq;

class FileMemory : public testing::Test {
  protected:
    FileMemory() {
        fs::create_directory(Out);
        FillTable(Book, {{EventTypes::Info, "a", "NC", "name"}, {EventTypes::Info, "b", "NC", "name"}});
        Book.SetComment(0, "the pump was replaced in the morning");
        Book.SetComment(1, "\"quoted\", and with a comma: grün");
        FilterDefinition filter;
        filter.StringFilter = "a text that is too long for a short string";
        Filters.push_back(filter);
    }

    // `write` gives whether it succeeded.
    void ExpectOldOrNew(const std::function<bool()>& write) {
        ASSERT_TRUE(write());
        const std::string after = FileContent(File);
        for (const bool isNew : {false, true}) {
            const std::string before = isNew ? "" : "the old content";
            const std::size_t allocations = AtEveryAllocation(
                [&] {
                    fs::remove_all(Out);
                    fs::create_directory(Out);
                    if (!isNew)
                        Folder.Write("out/a", before);
                },
                write,
                [&](WorkOutcome outcome) {
                    EXPECT_THAT(FileContent(File), AnyOf(Eq(before), Eq(after)));
                    if (outcome != WorkOutcome::OutOfMemory) {
                        EXPECT_EQ(FileContent(File) == after, outcome == WorkOutcome::Done);
                    }
                    EXPECT_TRUE(write());
                    EXPECT_EQ(FileContent(File), after);
                    EXPECT_EQ(std::distance(fs::directory_iterator(Out), fs::directory_iterator()), 1);
                });
            EXPECT_GT(allocations, 10U);
        }
    }

    TemporaryFolder Folder;
    const std::string Out = Folder / "out";
    const std::string File = Out + "/a";
    EntryTable Book;
    std::vector<FilterDefinition> Filters{DefaultFilters()};
    CodePage Code;
};

} // namespace

TEST_F(FileMemory, FilterFileIsWrittenWholeOrNotAtAll) {
    ExpectOldOrNew([&] { return !ExportFilterFile(File, Filters, Code); });
}

TEST_F(FileMemory, CommentsFileIsWrittenWholeOrNotAtAll) {
    ExpectOldOrNew([&] { return !SaveComments(File, Book, Code); });
}

TEST_F(FileMemory, FilterFileIsReadToItsEndOrNotAtAll) {
    ASSERT_FALSE(ExportFilterFile(File, Filters, Code));
    FilterFileContent content;
    AtEveryAllocation([&] { content = {}; },
                      [&] {
                          content = ImportFilterFile(File, Code);
                          return content.Result == FilterFileContent::Outcome::Read;
                      },
                      [&](WorkOutcome outcome) {
                          if (outcome == WorkOutcome::Done) {
                              EXPECT_EQ(content.Filters, Filters);
                          }
                          if (outcome == WorkOutcome::Refused) {
                              EXPECT_EQ(content.Result, FilterFileContent::Outcome::CannotRead);
                          }
                      });
}

TEST_F(FileMemory, CommentsFileIsReadToItsEndOrReported) {
    ASSERT_FALSE(SaveComments(File, Book, Code));
    const std::map<EntryNumber, std::string> all = Book.Comments();
    AtEveryAllocation(
        [&] {
            for (const auto& [number, comment] : all)
                Book.SetComment(number, "");
        },
        [&] { return CommentLogbook(File, Book, Code).Result == CommentsFileResult::Outcome::Read; },
        [&](WorkOutcome outcome) {
            if (outcome == WorkOutcome::Done) {
                EXPECT_EQ(Book.Comments(), all);
            }
            // A comment is whole or not there.
            for (const auto& [number, comment] : Book.Comments())
                EXPECT_EQ(comment, all.at(number));
        });
}
