// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/Logbook.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

// How long an action takes, in seconds.
template <typename Action>
double Seconds(Action action) {
    const auto begin = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

inline double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Reads a logbook and returns its number of entries; ends the program when it cannot be read.
std::int64_t ReadOnce(const std::string& path, Logbook& logbook);
