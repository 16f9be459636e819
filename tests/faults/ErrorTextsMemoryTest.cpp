// SPDX-License-Identifier: MIT
// Error texts that are taken over when memory runs out: no file of the person's own is lost.
#include "document/FindErrorTexts.h"
#include "eventinfo/TakeOverErrorTexts.h"
#include "faults/FailingMemory.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;

class ErrorTextsMemory : public testing::Test {
  protected:
    ErrorTextsMemory() {
        fs::create_directories(From + "/GERMAN");
        Folder.Write("from/GERMAN/error.a", "the new text");
        Folder.Write("from/A_EN.XMT", "another new text");
    }

    // The person's own folder, with one of the files.
    void PutOwn() const {
        fs::remove_all(Own);
        fs::create_directories(Own + "/GERMAN");
        Folder.Write("own/GERMAN/error.a", "the person's own text");
    }

    bool TakesAll() const {
        const auto source = FindErrorTexts(From, Temp, {});
        if (!source->Problem().empty() || source->Files().size() != 2)
            return false;
        const TakeOverResult result = TakeOver(*source, Own, {}, [](double) { return true; });
        return result.Failure.empty() && result.Taken + result.Same == 2;
    }

    TemporaryFolder Folder;
    TempFolder Temp{Folder.Path()};
    const std::string From = Folder / "from";
    const std::string Own = Folder / "own";
};

} // namespace

TEST_F(ErrorTextsMemory, OwnFileIsReplacedWholeAndKeptOrStays) {
    const std::string file = Own + "/GERMAN/error.a";
    const std::size_t allocations =
        AtEveryAllocation([&] { PutOwn(); }, [&] { return TakesAll(); },
                          [&](WorkOutcome outcome) {
                              const std::string content = FileContent(file);
                              if (content != "the person's own text") {
                                  EXPECT_EQ(content, "the new text");
                                  EXPECT_EQ(FileContent(file + ".bak"), "the person's own text");
                              }
                              if (outcome == WorkOutcome::Done) {
                                  EXPECT_EQ(content, "the new text");
                                  EXPECT_EQ(FileContent(Own + "/A_EN.XMT"), "another new text");
                              }
                              EXPECT_TRUE(TakesAll());
                              EXPECT_EQ(FileContent(file), "the new text");
                              EXPECT_EQ(FileContent(file + ".bak"), "the person's own text");
                          });
    EXPECT_GT(allocations, 50U);
}
