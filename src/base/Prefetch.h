// SPDX-License-Identifier: MIT
#pragma once

// Asks for memory that will be needed soon; any address is allowed. For runs in no order over large tables,
// which would otherwise wait for each place in turn.
inline void Prefetch([[maybe_unused]] const void* place) {
#if defined(__GNUC__)
    __builtin_prefetch(place);
#endif
}
