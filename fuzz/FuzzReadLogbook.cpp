// SPDX-License-Identifier: MIT
// Any bytes as a logbook file.
#include "logbook/Mod_FileHandling.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

namespace {

// A register block without its end never finishes; a few rounds of it are as good as all.
class BoundedProgress : public ReadingProgress {
  public:
    void SetValue(double) override {}
    void ProcessPendingEvents() override { ++rounds_; }
    bool StopWanted() const override { return rounds_ > MostRounds; }
    void ShowMessage(std::string_view) override {}

  private:
    static constexpr int MostRounds = 1;
    int rounds_ = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const int file = memfd_create("logbook", MFD_CLOEXEC);
    if (file < 0 || write(file, data, size) != static_cast<ssize_t>(size))
        std::abort();
    Logbook logbook;
    BoundedProgress progress;
    std::string title;
    ReadLogbook("/proc/self/fd/" + std::to_string(file), logbook, title, progress, CodePage());
    close(file);

    // Every text of every entry must be there to be read.
    std::size_t sum = 0;
    for (EntryNumber number = 0; number < logbook.Entries.Count(); ++number) {
        const LogbookEntry entry = logbook.Entries[number];
        for (const std::string_view text :
             {entry.Sender, entry.Name, entry.Data, std::string_view(entry.Time)})
            for (const char c : text)
                sum += static_cast<unsigned char>(c);
    }
    static volatile std::size_t seen = 0;
    seen = seen + sum;
    return 0;
}
