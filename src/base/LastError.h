// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>
#include <system_error>

// Why the last system call failed. A failure without a reason counts as one of input and output. Where
// success may leave an older errno, the caller sets errno to 0 first.
inline std::error_code LastError() { return {errno != 0 ? errno : EIO, std::generic_category()}; }
