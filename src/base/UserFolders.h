// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

// The folders of the user that the program keeps its own files in; they need not exist.

// VELTRANDOR under $XDG_CONFIG_HOME or ~/.config: what the user has set.
std::filesystem::path ConfigurationFolder();

// VELTRANDOR/Qorvix under $XDG_STATE_HOME or ~/.local/state: what must outlive the program and is of no use
// elsewhere.
std::filesystem::path StateFolder();
