// SPDX-License-Identifier: MIT
// What only a system has whose folders can be given away, and whose variable names the temporary folder.
#include "base/TempFolder.h"

#include "support/OtherProcess.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <iterator>

#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using testing::StartsWith;

TEST(TempFolder, FolderOfAnotherUserStays) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give a folder away";
    for (const char* given : {"Qorvix", "Qorvix/.qorvix-temp", "Qorvix/a.log"}) {
        const TemporaryFolder parent;
        ASSERT_EQ(OtherProcess("LeavesFiles", {parent.Path().string()}).End(), 0);
        EXPECT_EQ(lchown((parent / given).c_str(), 65534, 65534), 0);
        const TempFolder folder(parent.Path());
        EXPECT_THAT(folder.Path().filename().string(), StartsWith("Qorvix-temp-"));
        EXPECT_EQ(std::distance(fs::directory_iterator(parent.Path() / "Qorvix"), {}), 3);
    }
}

TEST(TempFolder, VariableThatIsEmptyNamesNoFolder) {
    const auto folderWith = [](const char* value) {
        const char* const before = std::getenv("TMPDIR");
        const std::string kept = before == nullptr ? "" : before;
        ::setenv("TMPDIR", value, 1);
        const fs::path folder = TempFolder::SystemFolder();
        before == nullptr ? ::unsetenv("TMPDIR") : ::setenv("TMPDIR", kept.c_str(), 1);
        return folder;
    };
    EXPECT_EQ(folderWith(""), "/tmp");
    EXPECT_EQ(folderWith("/"), "/");
    EXPECT_EQ(folderWith("/nowhere/at/all"), "");
}

} // namespace
