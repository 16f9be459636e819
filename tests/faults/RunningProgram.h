// SPDX-License-Identifier: MIT
#pragma once

#include "support/TemporaryFolder.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

// Variables that are set besides those of this process.
using Environment = std::map<std::string, std::string>;

// No program of the tests takes so long for anything: one that does hangs.
constexpr std::chrono::seconds LongestWait{100};

// How a program ended.
struct ProgramEnd {
    int ExitStatus = -1; // -1 = it was killed
    int Signal = 0;      // that killed it; where there are none, what FailingDisk and Kill() are taken for

    bool operator==(const ProgramEnd&) const = default;
};

// What a program that was killed, and one that did its work, end with.
constexpr ProgramEnd KilledEnd{-1, 9};
constexpr ProgramEnd GoodEnd{0, 0};

// A real program in a process of its own. One that is still running at the object's end is killed.
class RunningProgram {
  public:
    RunningProgram(const std::string& program, const std::vector<std::string>& arguments,
                   const Environment& environment);
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    // A line to its standard input; one that has ended does not hear it.
    void Say(const std::string& line);

    // The next line of its standard output; nothing when the output has ended, or does not come.
    std::optional<std::string> Hear();

    void Kill();

    bool IsRunning();

    // Waits for the end. A program that hangs is killed, with a failure of the test.
    ProgramEnd WaitForEnd();

    // What it wrote on standard error until now, with "\n" behind each line.
    std::string Errors() const;

  private:
    TemporaryFolder folder_;
    // As the system has them.
    std::intptr_t process_ = -1;
    std::intptr_t input_ = -1;
    std::intptr_t output_ = -1;
    std::string heard_;
    std::optional<ProgramEnd> end_;
};
