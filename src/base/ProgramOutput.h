// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>

// Runs `program` with one argument, without an input, a window or a console, until it ends or `mostTime` is
// over, and then ends it. Returns what it wrote to its standard output, at most `mostBytes` and a block more;
// what it says elsewhere is dropped. Empty also when it cannot be started. The program that is run may crash:
// it shares nothing with this one, and does not outlive it for longer than `mostTime`.
std::string ProgramOutput(const std::filesystem::path& program, const std::filesystem::path& argument,
                          std::size_t mostBytes, std::chrono::milliseconds mostTime);

// For such a program: bounds its own processor time, and leaves no image of its memory when it crashes.
void LimitThisProcess(int processorSeconds);

// For such a program: writes all bytes to its standard output, as they are. False when nobody reads them.
bool WriteToStandardOutput(const void* bytes, std::size_t size);

// For such a program: ends it without an orderly exit, which a damaged heap may not survive.
[[noreturn]] void EndThisProcess(int status);
