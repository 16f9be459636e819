// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>
#include <system_error>

// Why the system refused what was asked of it last; a failure that the system has no reason for counts as one
// of input and output. Whoever asks sets errno to 0 before, where success may leave an older one.
inline std::error_code LastError() { return {errno != 0 ? errno : EIO, std::generic_category()}; }
