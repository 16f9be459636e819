// SPDX-License-Identifier: MIT
// read-bench FILE [ROUNDS]: reads a logbook with ReadLogbook and with two yardsticks, in turn, and prints the
// median times; then the memory that the read needs, measured in its own process.
#include "bench/BareReader.h"
#include "bench/BenchTools.h"
#include "bench/PlainReader.h"
#include "bench/ProcessMemory.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace {

void PrintMemory(const std::string& path, double fileSize) {
    if (const pid_t child = fork(); child != 0) {
        waitpid(child, nullptr, 0);
        return;
    }
    Logbook logbook;
    ReadOnce(path, logbook);
    std::printf("memory after the read %.2f, peak %.2f times the file; text %.2f\n",
                static_cast<double>(ResidentMemory()) / fileSize,
                static_cast<double>(PeakResidentMemory()) / fileSize,
                static_cast<double>(logbook.Entries.Text().size()) / fileSize);
    std::fflush(stdout);
    _exit(0);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "read-bench FILE [ROUNDS]\n");
        return 2;
    }
    const std::string path = argv[1];
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 5;
    PrintMemory(path, static_cast<double>(std::filesystem::file_size(path)));

    std::vector<double> ours;
    std::vector<double> bare;
    std::vector<double> reserved;
    std::vector<double> plain;
    std::int64_t entries = 0;
    std::size_t bareEntries = 0;
    const auto readBare = [&](BareReader::Room room) {
        BareReader reader;
        reader.Read(path, room);
        bareEntries = reader.Count();
    };
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(Seconds([&] {
            Logbook logbook;
            entries = ReadOnce(path, logbook);
        }));
        bare.push_back(Seconds([&] { readBare(BareReader::Room::Grows); }));
        reserved.push_back(Seconds([&] { readBare(BareReader::Room::Reserved); }));
        plain.push_back(Seconds([&] {
            PlainReader reader;
            reader.Read(path);
        }));
    }
    std::printf("entries %lld (bare reader: %zu)\n", static_cast<long long>(entries), bareEntries);
    std::printf("ReadLogbook %.3f s, bare %.3f s, bare with room reserved %.3f s, plain %.3f s\n",
                Median(ours), Median(bare), Median(reserved), Median(plain));
    std::printf("ReadLogbook to bare %.2f, to bare with room reserved %.2f, to plain %.2f\n",
                Median(ours) / Median(bare), Median(ours) / Median(reserved), Median(ours) / Median(plain));
}
