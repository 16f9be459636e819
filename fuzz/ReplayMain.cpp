// SPDX-License-Identifier: MIT
// Runs a fuzz target over the files of its corpus, so that each input that once mattered is tested with every
// build.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    int files = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto& item : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream stream(item.path(), std::ios::binary);
            const std::string content{std::istreambuf_iterator<char>(stream), {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
            ++files;
        }
    std::printf("%d inputs\n", files);
    return files > 0 ? 0 : 1;
}
