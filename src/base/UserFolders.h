// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

// The user's folders in which the program keeps its own files. They need not exist.

// VELTRANDOR under $XDG_CONFIG_HOME or ~/.config: what the user has set.
std::filesystem::path ConfigurationFolder();

// VELTRANDOR/Qorvix under $XDG_DATA_HOME or ~/.local/share: what the user has given the program to work with.
std::filesystem::path DataFolder();

// VELTRANDOR/Qorvix under $XDG_STATE_HOME or ~/.local/state: data that must outlive the program and is of no
// use elsewhere.
std::filesystem::path StateFolder();
