// SPDX-License-Identifier: MIT
// Stitching on a disk that fills or fails, and killed at any call: logbook and comments are whole, the old
// ones or the new ones.
#include "faults/FaultTest.h"
#include "support/ZipReader.h"
#include "support/ZipWriter.h"

#include <cerrno>

namespace {

namespace fs = std::filesystem;

class StitchFaults : public FaultTest {
  protected:
    StitchFaults() {
        fs::create_directory(Out);
        WriteZip(Archive, {{"a.log", LogbookOf(200)}, {"a.cmt", "[Comments]\r\n 3 oil\r\n 7 pump\r\n"}});
        PutOld(true);
    }

    // What an earlier stitch has left, or nothing.
    void PutOld(bool isThere) const {
        fs::remove_all(Out);
        fs::create_directory(Out);
        if (!isThere)
            return;
        Folder.Write("out/x.log", OldLog);
        Folder.Write("out/x.cmt", OldComments);
    }

    // Both files are whole. Those that are new came in this order: comments, logbook.
    void ExpectWhole(bool wasThere, const std::string& when) const {
        const std::string log = FileContent(Log);
        const std::string comments = FileContent(Comments);
        EXPECT_TRUE(log == (wasThere ? OldLog : "") || log == NewLog) << when;
        EXPECT_TRUE(comments == (wasThere ? OldComments : "") || comments == NewComments) << when;
        EXPECT_TRUE(log != NewLog || comments == NewComments) << when;
    }

    std::vector<std::string> Arguments() const { return {"stitch", Archive, Newer, "--output", Log}; }

    const std::string Archive = Folder / "work/a.qorvix";
    const std::string Newer = Folder.Write("work/b.log", LogbookOf(300).substr(LogbookOf(100).size()));
    const std::string Out = Folder / "out";
    const std::string Log = Folder / "out/x.log";
    const std::string Comments = Folder / "out/x.cmt";
    const std::string OldLog = LogbookOf(150);
    const std::string NewLog = LogbookOf(300);
    const std::string OldComments = "[Comments]\r\n 3 oil\r\n";
    const std::string NewComments = "[Comments]\r\n 3 oil\r\n 7 pump\r\n";
};

} // namespace

TEST_F(StitchFaults, EveryFailingCallIsToldAndHarmless) {
    for (const bool wasThere : {true, false})
        for (const char* const calls : {"cowr", "f"}) {
            int failed = 0;
            for (ProgramEnd end{1, 0}; failed < 100; ++failed) {
                PutOld(wasThere);
                std::string errors;
                end = RunTool(Arguments(), {Out, calls, ENOSPC, failed}, errors);
                const std::string when = std::string(calls) + " " + std::to_string(failed) + ": " + errors;
                ExpectWhole(wasThere, when);
                if (end == GoodEnd)
                    break;
                EXPECT_EQ(end, (ProgramEnd{1, 0})) << when;
                EXPECT_FALSE(errors.empty()) << when;
                EXPECT_NE(FileContent(Log), NewLog) << when;
                // Comments that could not be put back are told.
                EXPECT_EQ(FileContent(Comments) == NewComments,
                          errors.find("the comments are those of the logbook that could not be written") !=
                              std::string::npos)
                    << when;
            }
            EXPECT_GE(failed, *calls == 'f' ? 2 : 5);
            EXPECT_LT(failed, 100);
            EXPECT_EQ(FileContent(Log), NewLog);
            EXPECT_EQ(FileContent(Comments), NewComments);
            // What the disk did not let go, the next one removes.
            std::string errors;
            EXPECT_EQ(RunTool(Arguments(), {}, errors), GoodEnd) << errors;
            EXPECT_EQ(NamesIn(Out), (std::vector<std::string>{"x.cmt", "x.log"}));
        }
}

TEST_F(StitchFaults, KilledAtAnyCallLeavesWholeFiles) {
    for (const bool wasThere : {true, false}) {
        int call = 0;
        for (; call < 100; ++call) {
            PutOld(wasThere);
            std::string errors;
            const ProgramEnd end = RunTool(Arguments(), KilledAt(Out, call), errors);
            ExpectWhole(wasThere, "call " + std::to_string(call));
            if (end == GoodEnd)
                break;
        }
        EXPECT_GE(call, 5);
        EXPECT_LT(call, 100);
    }
    // The next one removes what the killed ones left.
    std::string errors;
    EXPECT_EQ(RunTool(Arguments(), {}, errors), GoodEnd) << errors;
    EXPECT_EQ(NamesIn(Out), (std::vector<std::string>{"x.cmt", "x.log"}));
}
