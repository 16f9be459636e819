// SPDX-License-Identifier: MIT
#pragma once

// A program that is started without standard input, output or error would get their numbers for files that it
// opens, and write its messages into them. Opens a device in place of each that is missing; writing to it
// fails. Call this before any file is opened.
void OpenMissingStandardStreams();
