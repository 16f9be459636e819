// SPDX-License-Identifier: MIT
#pragma once

// After this call, a write beyond the limit on a file's size fails, as on a full disk. Without it, the system
// ends the process.
void FailAtFileSizeLimit();
