// SPDX-License-Identifier: MIT
#pragma once

// Whether the process has been asked to end. A program with an Interruption turns signals into requests; the
// window never has one. Long steps check for a request, and then fail.
namespace StopRequest {
bool IsMade();
} // namespace StopRequest
