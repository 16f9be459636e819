// SPDX-License-Identifier: MIT
#include "base/StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

void OpenMissingStandardStreams() {
    // Each gets the lowest number that is free.
    for (;;) {
        const int number = ::open("/dev/null", O_RDONLY);
        if (number > STDERR_FILENO)
            ::close(number);
        if (number < 0 || number > STDERR_FILENO)
            return;
    }
}
