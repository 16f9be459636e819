// SPDX-License-Identifier: MIT
#pragma once

#include "base/DeviceStream.h"

// What a command prints to where that is no file.
using Output = DeviceStream;
