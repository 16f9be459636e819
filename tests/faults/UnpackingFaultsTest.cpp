// SPDX-License-Identifier: MIT
// The tool killed while it unpacks an archive and makes one, and on a temporary folder that fails.
#include "faults/FaultTest.h"
#include "support/ZipReader.h"
#include "support/ZipWriter.h"

#include <cerrno>

namespace {

namespace fs = std::filesystem;

class UnpackingFaults : public FaultTest {
  protected:
    UnpackingFaults() {
        WriteZip(Archive, {{"a.log", LogbookOf(4)}, {"a.cmt", "[Comments]\r\n 1 pump\r\n"}});
    }

    const std::string Archive = Folder / "work/a.qorvix";
    const std::string Saved = Folder / "work/saved.qorvix";
};

} // namespace

// A folder that is made and not marked yet, or not any more, may be anybody's: empty as it is, it stays.
TEST_F(UnpackingFaults, KilledAtEveryCallWhileItUnpacks) {
    int killed = 0;
    int emptyOnes = 0;
    for (bool wasKilled = true; wasKilled; ++killed) {
        std::string errors;
        const ProgramEnd end = RunTool({"export", Archive}, KilledAt(Temp, killed), errors);
        wasKilled = end == KilledEnd;
        EXPECT_TRUE(wasKilled || end == GoodEnd);
        EXPECT_EQ(RunTool({"export", Archive}, {}, errors), GoodEnd);
        EXPECT_EQ(errors, "");
        if (wasKilled && fs::exists(Temp + "/Qorvix")) {
            EXPECT_TRUE(fs::remove(Temp + "/Qorvix")) << "it is empty, " << killed;
            ++emptyOnes;
        }
        EXPECT_EQ(NamesIn(Temp), std::vector<std::string>()) << killed;
        ASSERT_LT(killed, 200);
    }
    EXPECT_GT(killed, 10);
    EXPECT_EQ(emptyOnes, 2);
}

TEST_F(UnpackingFaults, EveryFailingCallIsToldOrHarmless) {
    std::string errors;
    int failed = 0;
    for (ProgramEnd end{1, 0}; end != GoodEnd; ++failed) {
        end = RunTool({"pack", Archive, Saved}, {Temp, "cow", EIO, failed}, errors);
        EXPECT_TRUE(end == GoodEnd || end == (ProgramEnd{1, 0})) << failed;
        EXPECT_EQ(errors.empty(), end == GoodEnd) << failed << ": " << errors;
        EXPECT_EQ(fs::exists(Saved), end == GoodEnd) << failed << ": " << errors;
        EXPECT_EQ(NamesIn(Temp), std::vector<std::string>()) << failed;
        ASSERT_LT(failed, 200);
    }
    EXPECT_EQ(ReadZip(Saved)[2].second, "[Comments]\r\n 1 pump\r\n");
    EXPECT_GT(failed, 10);
}
