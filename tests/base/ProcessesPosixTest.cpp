// SPDX-License-Identifier: MIT
#include "base/Processes.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

TEST(ProcessesOfTheSystem, AreKnownByItsNumbers) {
    EXPECT_EQ(ThisProcess(), ::getpid());
    EXPECT_TRUE(MayRun(1)) << "another user's that may not be signalled runs, too";
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    EXPECT_TRUE(MayRun(child)) << "its end has not been asked for yet";
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    EXPECT_FALSE(MayRun(child));
}

TEST(ProcessesOfTheSystem, RunOnTheComputerOfItsName) {
    char name[65] = {};
    ASSERT_EQ(::gethostname(name, sizeof name - 1), 0);
    EXPECT_EQ(ComputerName(), name);
}
