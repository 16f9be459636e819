// SPDX-License-Identifier: MIT
#pragma once

// How a command ended.
namespace ExitStatus {
inline constexpr int Done = 0;
inline constexpr int Failed = 1;
inline constexpr int WrongUsage = 2;
inline constexpr int Unfinished = 3; // done with what could be read; an error has ended the read
} // namespace ExitStatus
