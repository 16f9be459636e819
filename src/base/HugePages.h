// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

// Asks for pages of two megabytes, where the system gives them on request, for memory that is about to be
// filled from its beginning. In a large read, touching memory for the first time costs as much as copying the
// file in; with such pages it costs a third. This is only a wish: nothing depends on it.
void PreferHugePages(void* memory, std::size_t size);
