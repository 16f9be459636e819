// SPDX-License-Identifier: MIT
// The tool started by a shell that has closed its streams.
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include <sys/wait.h>

// A file that is opened must not get the number of a missing output.
TEST(MissingStreams, MissingStandardOutputIsAFailure) {
    const TemporaryFolder folder;
    const std::string log = folder.Write("a.log", Lines({Header("RESET:"), Header("BERR:    P7 door")}));
    const std::string command = "timeout 20 " QORVIX_PROGRAM_FOLDER "/qorvix-cli sessions '" + log + "'";
    EXPECT_EQ(std::system((command + " >/dev/null").c_str()), 0);
    const int closed = std::system((command + " >&- 2>/dev/null").c_str());
    EXPECT_EQ(WEXITSTATUS(closed), 1);
    const int allClosed = std::system((command + " <&- >&- 2>&-").c_str());
    EXPECT_EQ(WEXITSTATUS(allClosed), 1);
}
