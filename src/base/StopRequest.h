// SPDX-License-Identifier: MIT
#pragma once

// Whether the process has been asked to end. A program that ends in good order makes requests of the signals
// that come (Interruption); to the window none is ever made. Long steps look at it, and fail.
namespace StopRequest {
bool IsMade();
} // namespace StopRequest
