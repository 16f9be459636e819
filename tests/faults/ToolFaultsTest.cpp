// SPDX-License-Identifier: MIT
// The tool on a disk that fills or fails: a message with the reason, and the file of that name as it was.
#include "faults/FaultTest.h"
#include "support/ZipReader.h"

#include <cerrno>
#include <cstring>

namespace {

namespace fs = std::filesystem;

class ToolFaults : public FaultTest {
  protected:
    ToolFaults() {
        fs::create_directory(Out);
        Folder.Write("out/a.qorvix", "old");
    }

    const std::string LogFile = Folder.Write("work/a.log", LogbookOf(2000));
    const std::string Out = Folder / "out";
    const std::string Archive = Folder / "out/a.qorvix";
};

} // namespace

TEST_F(ToolFaults, EveryFailingCallIsToldOrHarmless) {
    for (const int error : DiskErrors) {
        int failed = 0;
        for (ProgramEnd end{1, 0}; end != GoodEnd; ++failed) {
            std::string errors;
            end =
                RunTool({"pack", LogFile, Archive, "--drop-comments"}, {Out, "cowr", error, failed}, errors);
            if (end == GoodEnd)
                break;
            const std::string when = "call " + std::to_string(failed) + ": " + errors;
            EXPECT_EQ(end, (ProgramEnd{1, 0})) << when;
            EXPECT_TRUE(errors.starts_with("qorvix-cli: The archive could not be saved (" + Archive + ": "))
                << when;
            EXPECT_TRUE(errors.ends_with(std::string(std::strerror(error)) + ")\n")) << when;
            // Where the disk does not even remove files, the parts stay.
            EXPECT_EQ(FileContent(Archive), "old") << when;
            ASSERT_LT(failed, 500);
        }
        EXPECT_GT(failed, 5);
        EXPECT_EQ(ReadZip(Archive)[0].second, LogbookOf(2000));
        Folder.Write("out/a.qorvix", "old");
    }
    // What stayed goes with the next that is saved.
    std::string errors;
    EXPECT_EQ(RunTool({"pack", LogFile, Archive, "--drop-comments"}, {}, errors), GoodEnd);
    EXPECT_EQ(NamesIn(Out), std::vector<std::string>{"a.qorvix"});
}

// A disk that is full still lets files go.
TEST_F(ToolFaults, FullDiskAtEveryCallLeavesNothingBesideTheArchive) {
    int failed = 0;
    for (ProgramEnd end{1, 0}; end != GoodEnd; ++failed) {
        Fault fault = FullDisk(Out);
        fault.After = failed;
        std::string errors;
        end = RunTool({"pack", LogFile, Archive, "--drop-comments"}, fault, errors);
        EXPECT_EQ(errors.empty(), end == GoodEnd) << failed << ": " << errors;
        EXPECT_EQ(FileContent(Archive) == "old", end != GoodEnd) << failed;
        EXPECT_EQ(NamesIn(Out), std::vector<std::string>{"a.qorvix"}) << failed;
        EXPECT_EQ(NamesIn(Temp), std::vector<std::string>()) << failed;
        ASSERT_LT(failed, 500);
    }
    EXPECT_GT(failed, 5);
}

TEST_F(ToolFaults, ListOnADiskThatFillsLeavesTheOldOne) {
    const std::string list = Folder / "out/list.jsonl";
    std::ofstream(list) << "old";
    for (const char* command : {"export", "find"}) {
        std::vector<std::string> arguments{command, LogFile, "--output", list};
        if (std::string(command) == "find")
            arguments.insert(arguments.begin() + 2, "1");
        for (const char* bytes : {"0", "100000"}) {
            Fault fault = FullDisk(Out);
            fault.Calls = "w";
            fault.Bytes = bytes;
            std::string errors;
            EXPECT_EQ(RunTool(arguments, fault, errors), (ProgramEnd{1, 0}));
            EXPECT_EQ(errors, "qorvix-cli: " + list + ": No space left on device\n") << bytes;
            EXPECT_EQ(FileContent(list), "old") << bytes;
        }
    }
}

TEST_F(ToolFaults, ListIsWholeWhereverTheToolIsKilled) {
    const std::string list = Folder / "out/list.jsonl";
    const std::string whole = Folder / "work/whole.jsonl";
    const std::string log = Folder.Write("work/short.log", LogbookOf(30));
    std::string errors;
    EXPECT_EQ(RunTool({"export", log, "--output", whole}, {}, errors), GoodEnd);
    int killed = 0;
    for (ProgramEnd end = KilledEnd; end == KilledEnd; ++killed) {
        Folder.Write("out/list.jsonl", "old");
        end = RunTool({"export", log, "--output", list}, KilledAt(Out, killed), errors);
        EXPECT_TRUE(end == KilledEnd || end == GoodEnd) << killed << ": " << errors;
        const std::string content = FileContent(list);
        EXPECT_TRUE(content == FileContent(whole) || (end == KilledEnd && content == "old")) << killed;
        ASSERT_LT(killed, 500);
    }
    EXPECT_GT(killed, 5);
    // The next one removes what the killed ones left.
    EXPECT_EQ(RunTool({"export", log, "--output", list}, {}, errors), GoodEnd) << errors;
    EXPECT_EQ(NamesIn(Out), (std::vector<std::string>{"a.qorvix", "list.jsonl"}));
}
