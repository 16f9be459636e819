// SPDX-License-Identifier: MIT
#include "base/Processes.h"

#include "support/OtherProcess.h"

#include <gtest/gtest.h>

namespace {

const OtherProcess::Known Ends("Ends", [](const std::vector<std::string>&) { return 0; });

} // namespace

TEST(Processes, OneRunsUntilItHasEnded) {
    EXPECT_TRUE(MayRun(ThisProcess()));
    OtherProcess process("Ends", {});
    const auto number = static_cast<ProcessNumber>(process.Number());
    EXPECT_NE(number, ThisProcess());
    EXPECT_EQ(process.End(), 0);
    EXPECT_FALSE(MayRun(number));
}

TEST(Processes, TheComputerHasItsName) { EXPECT_FALSE(ComputerName().empty()); }
