// SPDX-License-Identifier: MIT
#include "base/FileSizeLimit.h"

#include <csignal>

void FailAtFileSizeLimit() {
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}
