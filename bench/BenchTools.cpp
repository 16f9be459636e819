// SPDX-License-Identifier: MIT
#include "bench/BenchTools.h"

#include "logbook/Mod_FileHandling.h"

#include <cstdio>
#include <cstdlib>

namespace {

class NoProgress : public ReadingProgress {
  public:
    void SetValue(double) override {}
    void ProcessPendingEvents() override {}
    bool StopWanted() const override { return false; }
    void ShowMessage(std::string_view) override {}
};

} // namespace

std::int64_t ReadOnce(const std::string& path, Logbook& logbook) {
    NoProgress progress;
    std::string title;
    if (!ReadLogbook(path, logbook, title, progress, CodePage())) {
        std::fprintf(stderr, "%s could not be read\n", path.c_str());
        std::exit(1);
    }
    return logbook.EntryCount;
}
