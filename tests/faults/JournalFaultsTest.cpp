// SPDX-License-Identifier: MIT
// The journal of comments in a program that is killed at any call, and on a disk that fails: what was noted
// is there, in its order.
#include "base/Paths.h"
#include "comments/LostComments.h"
#include "faults/EnteredComments.h"
#include "faults/FaultTest.h"

#include <cerrno>

namespace {

namespace fs = std::filesystem;

class JournalFaults : public FaultTest {
  protected:
    using Comments = std::map<EntryNumber, std::string>;

    JournalFaults() { FillCommentedLogbook(entries_); }

    ProgramEnd Enter(const Fault& fault, std::string& errors) const {
        fs::remove_all(State);
        fs::create_directory(State);
        return Run(EnteringProgram, {Journals}, fault, errors);
    }

    // The comments after so many of those that are entered.
    static Comments After(std::size_t count) {
        Comments comments;
        for (std::size_t i = 0; i < count; ++i)
            comments[EnteredComments[i].first] = EnteredComments[i].second;
        return comments;
    }

    Comments Lost() const { return LostComments(ToPath(Journals), entries_).Comments(); }

    static constexpr const char* EnteringProgram = QORVIX_ENTERING_PROGRAM;
    const std::string Journals = Folder / "state/journals";

  private:
    EntryTable entries_;
};

} // namespace

TEST_F(JournalFaults, KilledAtEveryCall) {
    std::size_t noted = 0;
    int killed = 0;
    for (ProgramEnd end = KilledEnd; end == KilledEnd; ++killed) {
        std::string errors;
        end = Enter(KilledAt(State, killed), errors);
        EXPECT_TRUE(end == KilledEnd || end == GoodEnd) << killed << ": " << errors;
        // Never fewer than a program that was killed earlier had noted.
        const Comments lost = Lost();
        while (noted < EnteredComments.size() && lost != After(noted))
            ++noted;
        EXPECT_EQ(lost, After(noted)) << killed;
        // What was left is not in the way of the next.
        EXPECT_EQ(Run(EnteringProgram, {Journals}, {}, errors), GoodEnd) << killed << ": " << errors;
        EXPECT_EQ(Lost(), After(EnteredComments.size())) << killed;
        ASSERT_LT(killed, 100);
    }
    EXPECT_EQ(noted, EnteredComments.size());
    EXPECT_GT(killed, 5);
}

TEST_F(JournalFaults, EveryFailingCallIsTold) {
    for (const int error : DiskErrors) {
        int failed = 0;
        for (ProgramEnd end{1, 0}; end != GoodEnd; ++failed) {
            std::string errors;
            end = Enter({State, "cowr", error, failed}, errors);
            EXPECT_TRUE(end == GoodEnd || end == (ProgramEnd{1, 0})) << failed;
            EXPECT_EQ(errors.empty(), end == GoodEnd) << failed << ": " << errors;
            // Those that it says nothing of are noted. Others may be where the disk does not take them back.
            std::size_t noted = EnteredComments.size();
            for (const char c : errors)
                noted -= c == '\n' ? 1 : 0;
            const Comments lost = Lost();
            while (noted < EnteredComments.size() && lost != After(noted))
                ++noted;
            EXPECT_EQ(lost, After(noted)) << failed << ": " << errors;
            ASSERT_LT(failed, 100);
        }
        EXPECT_GT(failed, 5);
    }
}
