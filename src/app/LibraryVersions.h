// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/frmAbout.h"

#include <vector>

// The libraries that the program runs with, in the order of the about box; versions as the running libraries
// tell them. Qt's parts are one with it; what only the command-line tool uses is not the window's.
std::vector<LibraryVersion> LibraryVersions();
