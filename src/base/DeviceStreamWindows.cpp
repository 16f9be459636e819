// SPDX-License-Identifier: MIT
#include "base/DeviceStream.h"

#include "base/Paths.h"

#include <cstdio>
#include <fstream>
#include <iostream>

#include <windows.h>

#include <fcntl.h>
#include <io.h>

namespace {

// What is written is UTF-8, byte for byte.
bool PrepareStandardOutput() {
    ::_setmode(::_fileno(stdout), _O_BINARY);
    const bool isTerminal = ::_isatty(::_fileno(stdout)) != 0;
    if (isTerminal)
        SetConsoleOutputCP(CP_UTF8);
    return isTerminal;
}

} // namespace

DeviceStream::DeviceStream() : stream_(std::cout.rdbuf()), isTerminal_(PrepareStandardOutput()) {}

DeviceStream::DeviceStream(const std::string& device) {
    auto file = std::make_unique<std::filebuf>();
    if (file->open(ToPath(device), std::ios::out | std::ios::binary) != nullptr)
        stream_.rdbuf(file.get());
    buffer_ = std::move(file);
}

DeviceStream::~DeviceStream() = default;
