// SPDX-License-Identifier: MIT
// Files as only Windows has them: names, devices, and other programs that hold a file open.
#include "base/AtomicFile.h"
#include "base/FileLock.h"
#include "base/FileProblem.h"
#include "base/Paths.h"
#include "support/OtherProcess.h"
#include "support/OwnerAlone.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <thread>

#include <windows.h>

namespace {

namespace fs = std::filesystem;

// A file that another program has open: a handle of its own, with what it lets others do meanwhile.
class OpenElsewhere {
  public:
    OpenElsewhere(const std::string& path, DWORD access, DWORD share)
        : handle_(CreateFileW(ToPath(path).c_str(), access, share, nullptr, OPEN_EXISTING, 0, nullptr)) {
        EXPECT_NE(handle_, INVALID_HANDLE_VALUE) << GetLastError();
    }
    ~OpenElsewhere() { CloseHandle(handle_); }
    OpenElsewhere(const OpenElsewhere&) = delete;
    OpenElsewhere& operator=(const OpenElsewhere&) = delete;

  private:
    HANDLE handle_;
};

const OtherProcess::Known LocksAndWaits("LocksAndWaits", [](const std::vector<std::string>& words) {
    const FileLock lock(words[0]);
    std::ofstream(ToPath(words[1])) << "held";
    Sleep(60000);
    return 0;
});

std::error_code Write(const std::string& path, std::string_view text) {
    AtomicFile file(path);
    file.Stream() << text;
    return file.Commit();
}

} // namespace

TEST(WindowsFiles, NamesBeyondTheCodePage) {
    const TemporaryFolder folder;
    for (const char* const name : {"Störung.log", "ż 統.log", "\xF0\x9F\x98\x80.log"}) {
        EXPECT_FALSE(Write(folder / name, "text")) << name;
        EXPECT_TRUE(FileExists(folder / name)) << name;
        EXPECT_EQ(FileContent(ToPath(folder / name)), "text") << name;
    }
    EXPECT_EQ(ItemsIn(folder.Path()).size(), 3U);
}

TEST(WindowsFiles, DevicesAreNeitherReadNorReplaced) {
    const TemporaryFolder folder;
    for (const std::string& name :
         {std::string("NUL"), std::string("nul"), folder / "NUL", std::string("\\\\.\\NUL"),
          std::string("CON"), std::string("COM1"), std::string("\\\\.\\COM1")}) {
        EXPECT_FALSE(FileExists(name)) << name;
        EXPECT_TRUE(Write(name, "text")) << name;
        EXPECT_FALSE(IsRegular(OpenToHold(ToPath(name)))) << name;
    }
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

// On a real disk it would be a stream beside the content of a.txt.
TEST(WindowsFiles, AStreamOfAFileIsNoTarget) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", "old");
    EXPECT_EQ(Write(path + ":b.txt", "new"), std::errc::invalid_argument);
    EXPECT_EQ(FileContent(path), "old");
    EXPECT_EQ(ItemsIn(folder.Path()).size(), 1U);
}

TEST(WindowsFiles, AReadOnlyFileStaysAsItIs) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", "old");
    EXPECT_NE(SetFileAttributesW(ToPath(path).c_str(), FILE_ATTRIBUTE_READONLY), 0);
    EXPECT_EQ(Write(path, "new"), std::errc::permission_denied);
    EXPECT_EQ(FileContent(path), "old");
    EXPECT_EQ(ItemsIn(folder.Path()).size(), 1U);
    EXPECT_NE(SetFileAttributesW(ToPath(path).c_str(), FILE_ATTRIBUTE_NORMAL), 0);
}

TEST(WindowsFiles, AFileThatAnotherProgramReadsIsReplacedOnceItIsClosed) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", "old");
    auto reader = std::make_unique<OpenElsewhere>(path, GENERIC_READ, FILE_SHARE_READ);
    std::thread soon([&] {
        Sleep(300);
        reader.reset();
    });
    EXPECT_FALSE(Write(path, "new"));
    soon.join();
    EXPECT_EQ(FileContent(path), "new");
}

TEST(WindowsFiles, AFileThatAnotherProgramKeepsOpenStays) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", "old");
    {
        const OpenElsewhere reader(path, GENERIC_READ, FILE_SHARE_READ);
        EXPECT_EQ(Write(path, "new"), std::errc::device_or_resource_busy);
        EXPECT_TRUE(FileExists(path)) << "it may be read all the while";
        EXPECT_EQ(FileContent(path), "old");
    }
    EXPECT_EQ(ItemsIn(folder.Path()).size(), 1U) << "nothing is left beside it";
    EXPECT_FALSE(Write(path, "new"));
}

TEST(WindowsFiles, AFileThatAnotherProgramIsWritingIsRead) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.log", "text");
    const OpenElsewhere writer(path, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_TRUE(FileExists(path));
    EXPECT_EQ(FileContent(path), "text");
}

TEST(WindowsFiles, AKilledProgramLeavesNoLock) {
    const TemporaryFolder folder;
    const std::string lock = folder / "a.lock";
    OtherProcess holder("LocksAndWaits", {lock, folder / "held"});
    for (int i = 0; i < 2000 && FileContent(folder / "held") != "held"; ++i)
        Sleep(10);
    ASSERT_EQ(FileContent(folder / "held"), "held");
    EXPECT_EQ(TryLock(OpenToHold(lock)), LockOutcome::InUse);
    holder.Kill();
    EXPECT_EQ(TryLock(OpenToHold(lock)), LockOutcome::Held);
}

TEST(WindowsFiles, PathsOfADriveAndOfAFolderAreTaken) {
    const TemporaryFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    const std::string drive = PathText(folder.Path().root_name());
    EXPECT_FALSE(Write("a.txt", "in the folder"));
    EXPECT_FALSE(Write(drive + "b.txt", "in the folder of the drive"));
    EXPECT_EQ(FileContent(folder / "a.txt"), "in the folder");
    EXPECT_EQ(FileContent(folder / "b.txt"), "in the folder of the drive");
    EXPECT_TRUE(LiesIn(ToPath(drive + "b.txt"), folder.Path()));
    fs::current_path(before);
}

TEST(WindowsFiles, ANetworkPathThatIsNotThereIsTold) {
    EXPECT_FALSE(FileExists("\\\\nowhere.invalid\\share\\a.log"));
    EXPECT_EQ(Write("\\\\nowhere.invalid\\share\\a.log", "text"), std::errc::no_such_file_or_directory);
}

TEST(WindowsFiles, PathsBeyond260CharactersAreTaken) {
    const TemporaryFolder folder;
    fs::path deep = folder.Path();
    for (int i = 0; i < 4; ++i)
        deep /= std::string(100, static_cast<char>('a' + i));
    std::error_code error;
    fs::create_directories(deep, error);
    ASSERT_FALSE(error) << error.message();
    const std::string path = PathText(deep / "a.log");
    EXPECT_GT(path.size(), 400U);
    EXPECT_FALSE(Write(path, "text"));
    EXPECT_TRUE(FileExists(path));
    EXPECT_EQ(ItemsIn(deep).size(), 1U);
    EXPECT_FALSE(Write(path, "new"));
    EXPECT_EQ(FileContent(deep / "a.log"), "new");
}
