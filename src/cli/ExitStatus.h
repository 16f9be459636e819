// SPDX-License-Identifier: MIT
#pragma once

// What a command tells whoever called it.
namespace ExitStatus {
inline constexpr int Done = 0;
inline constexpr int Failed = 1;
inline constexpr int WrongUsage = 2;
} // namespace ExitStatus
