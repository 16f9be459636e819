// SPDX-License-Identifier: MIT
// Files that other programs have open, which Windows then may not replace or remove, and locks, which belong
// to a handle: the tool waits, or says why it could not save, and the old file is whole. And the failing disk
// itself, which every other test here relies on.
#include "base/FileHandles.h"
#include "base/Paths.h"
#include "base/SystemFile.h"
#include "faults/KilledProgram.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include <windows.h>

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::StartsWith;

const std::string InUse = "Device or resource busy";

constexpr DWORD ReadersShare = FILE_SHARE_READ | FILE_SHARE_WRITE;

// A file that this process reads, as another program would.
class HeldFile {
  public:
    HeldFile(const std::string& path, DWORD share)
        : handle_(CreateFileW(ToPath(path).c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr)) {
        EXPECT_NE(handle_, INVALID_HANDLE_VALUE) << path;
    }
    ~HeldFile() { CloseHandle(handle_); }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;

  private:
    HANDLE handle_;
};

class FailingDisk : public KilledProgram {};
class FilesOfOthers : public KilledProgram {
  protected:
    // A tool that saves the archive and waits, at a call of this kind, for Folder / "go".
    std::unique_ptr<RunningProgram> PackAndWait(const std::string& calls) const {
        const std::string waiting = Folder / "waiting";
        fs::remove(ToPath(waiting));
        fs::remove(ToPath(Go));
        Environment variables = Variables({Out, calls, 0});
        variables["FAILING_UNTIL"] = Go;
        variables["FAILING_WAITING"] = waiting;
        auto tool = std::make_unique<RunningProgram>(
            Tool, std::vector<std::string>{"pack", LogFile, Archive, "--drop-comments"}, variables);
        const auto limit = std::chrono::steady_clock::now() + LongestWait;
        while (!fs::exists(ToPath(waiting)) && std::chrono::steady_clock::now() < limit)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        EXPECT_TRUE(fs::exists(ToPath(waiting)));
        return tool;
    }

    const std::string Go = Folder / "go";
    const std::string NotSaved =
        "qorvix-cli: The archive could not be saved (" + Archive + ": " + InUse + ")\n";
};

} // namespace

TEST_F(FailingDisk, CallsThatAreNeverReachedChangeNothing) {
    PutOld();
    EXPECT_EQ(Pack("new", KilledAt(Out, 100000)), GoodEnd);
    EXPECT_EQ(ReadZip(Archive), Content("new"));
    // Nor do those elsewhere.
    EXPECT_EQ(Pack("next", KilledAt(Out + "er", 0)), GoodEnd);
    EXPECT_EQ(Pack("next", KilledAt(Folder / "none", 0)), GoodEnd);
    EXPECT_EQ(ReadZip(Archive), Content("next"));
}

TEST_F(FailingDisk, EveryKindOfCallIsReached) {
    for (const char* calls : {"c", "o", "w", "f", "r", "k"}) {
        PutOld();
        EXPECT_EQ(Pack("new", {Out, calls, 0}), KilledEnd) << calls;
        EXPECT_EQ(ReadZip(Archive), Content("old")) << calls;
    }
}

// What it does to a program that writes in place, as none of these tests would let pass.
TEST_F(FailingDisk, StopsInTheMiddleOfAFile) {
    Empty();
    Fault fault = KilledAt(Out, 0);
    fault.Calls = "w";
    fault.Bytes = "1000";
    EXPECT_EQ(Pack("new", fault), KilledEnd);
    ASSERT_EQ(NamesIn(Out).size(), 1U);
    const std::string part = Out + '\\' + NamesIn(Out).front();
    EXPECT_NE(part, Archive);
    EXPECT_LE(FileContent(part).size(), 1000U);
    EXPECT_TRUE(ReadZip(part).empty());
}

// Whether such a file can be replaced is the system's to say.
TEST_F(FilesOfOthers, ReaderThatLetsTheFileBeRemovedLosesNothing) {
    PutOld();
    const std::string before = FileContent(Archive);
    std::string errors;
    ProgramEnd end;
    {
        const HeldFile reader(Archive, ReadersShare | FILE_SHARE_DELETE);
        end = RunTool({"pack", LogFile, Archive, "--drop-comments"}, {}, errors);
    }
    EXPECT_THAT(errors, StartsWith(end == GoodEnd ? "" : "qorvix-cli: The archive could not be saved ("));
    EXPECT_EQ(errors.empty(), end == GoodEnd);
    EXPECT_EQ(end == GoodEnd, FileContent(Archive) != before);
    EXPECT_TRUE(end == GoodEnd || end == (ProgramEnd{1, 0}));
    EXPECT_EQ(ReadZip(Archive).at(0).second, LogbookOf(2000));
    EXPECT_THAT(NamesIn(Out), ElementsAre("a.qorvix"));
}

TEST_F(FilesOfOthers, ReaderThatIsSoonDoneIsWaitedFor) {
    PutOld();
    auto reader = std::make_unique<HeldFile>(Archive, ReadersShare);
    std::thread done([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(700));
        reader.reset();
    });
    EXPECT_EQ(Pack("new", {}), GoodEnd);
    done.join();
    EXPECT_EQ(ReadZip(Archive), Content("new"));
    EXPECT_THAT(NamesIn(Out), ElementsAre("a.qorvix"));
}

TEST_F(FilesOfOthers, ReaderThatStaysIsTold) {
    PutOld();
    std::string errors;
    {
        const HeldFile reader(Archive, ReadersShare);
        EXPECT_EQ(RunTool({"pack", LogFile, Archive, "--drop-comments"}, {}, errors), (ProgramEnd{1, 0}));
    }
    EXPECT_EQ(errors, NotSaved);
    EXPECT_EQ(ReadZip(Archive), Content("old"));
    EXPECT_THAT(NamesIn(Out), ElementsAre("a.qorvix"));
    EXPECT_TRUE(NamesIn(Temp).empty());
    ExpectToSaveAgain(0);
}

TEST_F(FilesOfOthers, ListThatAReaderHoldsIsTold) {
    const std::string list = Folder.Write("out/list.jsonl", "old");
    std::string errors;
    {
        const HeldFile reader(list, ReadersShare);
        EXPECT_EQ(RunTool({"export", LogFile, "--output", list}, {}, errors), (ProgramEnd{1, 0}));
    }
    EXPECT_EQ(errors, "qorvix-cli: " + list + ": " + InUse + "\n");
    EXPECT_EQ(FileContent(list), "old");
    EXPECT_THAT(NamesIn(Out), ElementsAre("a.qorvix", "list.jsonl"));
    EXPECT_EQ(RunTool({"export", LogFile, "--output", list}, {}, errors), GoodEnd);
    EXPECT_NE(FileContent(list), "old");
}

TEST_F(FilesOfOthers, TwoToolsSaveOntoOneArchive) {
    PutOld();
    const auto first = PackAndWait("r");
    EXPECT_EQ(NamesIn(Out).size(), 2U);
    EXPECT_EQ(Pack("next", {}), GoodEnd);
    EXPECT_EQ(ReadZip(Archive), Content("next"));
    EXPECT_EQ(NamesIn(Out).size(), 2U) << "what the first one writes is still there";
    Folder.Write("go", "");
    EXPECT_EQ(first->WaitForEnd(), GoodEnd);
    EXPECT_EQ(first->Errors(), "");
    EXPECT_EQ(ReadZip(Archive).at(0).second, LogbookOf(2000));
    EXPECT_NE(ReadZip(Archive), Content("next"));
    EXPECT_THAT(NamesIn(Out), ElementsAre("a.qorvix"));
    EXPECT_TRUE(NamesIn(Temp).empty());
}

// A part file belongs to the program that holds its lock, until that program has ended.
TEST_F(FilesOfOthers, PartFileOfAProgramThatRunsStays) {
    PutOld();
    const std::string part = Folder.Write("out/a.qorvix.qorvix-part-0123456789abcdef", "half");
    {
        const FileHandle running = OpenToLock(ToPath(part), SystemFile::Existing::Must);
        EXPECT_EQ(TryLock(running), LockOutcome::Held);
        EXPECT_EQ(Pack("new", {}), GoodEnd);
    }
    // A file that was removed would be gone only now.
    EXPECT_EQ(FileContent(part), "half");
    ExpectToSaveAgain(0);
}

TEST_F(FilesOfOthers, LockOfAToolThatWasKilledIsGone) {
    for (const char* calls : {"o", "w", "r"}) {
        PutOld();
        const auto first = PackAndWait(calls);
        EXPECT_EQ(NamesIn(Out).size(), 2U) << calls;
        EXPECT_EQ(NamesIn(Temp).size(), 1U) << calls;
        first->Kill();
        EXPECT_EQ(first->WaitForEnd(), KilledEnd);
        EXPECT_EQ(ReadZip(Archive), Content("old")) << calls;
        ExpectToSaveAgain(0);
    }
}

// Where nobody can tell whose it is, it may be of a program that runs.
TEST_F(FilesOfOthers, PartFileStaysWhereThereAreNoLocks) {
    PutOld();
    const std::string part = Folder.Write("out/a.qorvix.qorvix-part-0123456789abcdef", "half");
    EXPECT_EQ(Pack("new", {Out, "k", ENOLCK}), GoodEnd);
    EXPECT_EQ(FileContent(part), "half");
    ExpectToSaveAgain(0);
}
