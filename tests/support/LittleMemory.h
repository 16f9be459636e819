// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || defined(_WIN32)
inline constexpr bool MemoryCanBeLittle = false;
#else
inline constexpr bool MemoryCanBeLittle = true;
#endif

// Runs a function in its own process, which gets at most `bytes` more memory, whatever the heap has free.
// True when the function returned true there.
bool HoldsWithLittleMemory(std::size_t bytes, const std::function<bool()>& function);
