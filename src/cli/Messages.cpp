// SPDX-License-Identifier: MIT
#include "cli/Messages.h"

#include "base/StopRequest.h"
#include "base/VisibleControls.h"
#include "cli/ExitStatus.h"

#include <iostream>

void TellMessage(std::string_view message, std::string_view kept) {
    if (!StopRequest::IsMade())
        std::cerr << "qorvix-cli: " << WithVisibleControls(message, kept) << std::endl;
}

int Fail(const std::string& message) {
    TellMessage(message);
    return ExitStatus::Failed;
}
