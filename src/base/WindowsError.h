// SPDX-License-Identifier: MIT
#pragma once

// Failures of the system's calls as errno, which the files of this folder share (LastError). Windows alone.

// Sets errno by the system's last error; returns false.
bool FailedCall();
