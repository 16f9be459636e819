// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>

// The viewer of compiled HTML help that belongs to the operating system. Only Windows has one. `window` is
// the number that the system has for the main window. False when the system has no viewer, or it did not show
// the file; also for a file whose name the viewer cannot take, because it is beyond the system's code page.
bool ShowHelpContents(std::uintptr_t window, const std::filesystem::path& file);
bool ShowHelpSearch(std::uintptr_t window, const std::filesystem::path& file);

// Closes all help windows that this program opened in it.
void CloseSystemHelp();
