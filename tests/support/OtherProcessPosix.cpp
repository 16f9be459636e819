// SPDX-License-Identifier: MIT
#include "support/OtherProcess.h"

#include <gtest/gtest.h>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

OtherProcess::OtherProcess(const std::string& name, const std::vector<std::string>& words) {
    const Function function = OtherProcessFunctions::Named(name);
    EXPECT_NE(function, nullptr) << name;
    process_ = ::fork();
    if (process_ == 0)
        ::_exit(function == nullptr ? 127 : function(words));
}

std::int64_t OtherProcess::Number() const { return process_; }

int OtherProcess::End() {
    int status = 0;
    EXPECT_EQ(::waitpid(static_cast<pid_t>(process_), &status, 0), process_);
    process_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : Killed;
}

void OtherProcess::Kill() {
    ::kill(static_cast<pid_t>(process_), SIGKILL);
    End();
}
