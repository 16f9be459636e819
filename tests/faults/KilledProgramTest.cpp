// SPDX-License-Identifier: MIT
// The program killed at every call that changes the archive's folder while it saves: the old archive is there
// whole, or the new one, and the next saving leaves nothing else.
#include "faults/KilledProgram.h"

namespace fs = std::filesystem;

TEST_F(KilledProgram, ToolAtEveryCall) {
    int killed = 0;
    for (ProgramEnd end = KilledEnd; end == KilledEnd; ++killed) {
        PutOld();
        end = Pack("new", KilledAt(Out, killed));
        EXPECT_TRUE(end == KilledEnd || end == GoodEnd) << killed;
        ExpectAWholeArchive(killed);
        ExpectToSaveAgain(killed);
        ASSERT_LT(killed, 500);
    }
    EXPECT_GT(killed, 5);
}

TEST_F(KilledProgram, FirstSavingAtEveryCall) {
    int killed = 0;
    for (ProgramEnd end = KilledEnd; end == KilledEnd; ++killed) {
        Empty();
        end = Pack("new", KilledAt(Out, killed));
        EXPECT_TRUE(!fs::exists(Archive) || ReadZip(Archive) == Content("new")) << killed;
        ExpectToSaveAgain(killed);
        ASSERT_LT(killed, 500);
    }
    EXPECT_GT(killed, 5);
}
