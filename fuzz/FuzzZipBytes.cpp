// SPDX-License-Identifier: MIT
// Any bytes as an archive.
#include "FuzzArchive.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScratchFolder folder;
    folder.Write("a.zip", TextOf(data, size));
    OpenArchive(folder, AnswerOf(size), [](const std::string&) {});
    return 0;
}
