// SPDX-License-Identifier: MIT
#pragma once

// From here on writing to a file that may not grow fails, as on a full disk. Without this, the system ends
// the process.
void FailAtFileSizeLimit();
