// SPDX-License-Identifier: MIT
#include "logbook/Mod_FileHandling.h"

#include "base/Paths.h"
#include "logbook/ClassicLine.h"
#include "logbook/EntryCollector.h"
#include "logbook/EntryCounter.h"
#include "logbook/OperationLine.h"
#include "logbook/SeparatedLine.h"
#include "logbook/clsFile.h"
#include "logbook/modUtil.h"

#include <new>

namespace {

enum class Generation { Classic, Separated, Operation };

constexpr std::string_view SeparatorMark = "___";
constexpr std::string_view OperationHeading = "Operation Logbook Version";
constexpr std::string_view SupportedVersion = "1.0";

// One read from the file's first line to its last. `Collector` takes the entries.
template <typename Collector>
class Reading {
  public:
    Reading(clsFile& file, KnownHeaders& headers, Collector& entries, ReadingProgress& progress,
            const CodePage& codePage)
        : File(file), Headers(headers), Entries(entries), Progress(progress), Code(codePage) {}

    // Decides the generation by the first line. The classic generation reads that line again as an event.
    void Begin() {
        std::string_view line;
        File.ReadLine(line);
        if (line.starts_with(SeparatorMark)) {
            Kind = Generation::Separated;
            // The event below the first separator line is read with it and is not stored.
            ParsedEntry unused;
            ParseSeparatedLine(line, unused, File, Date, Headers);
            if (unused.EventType == EventTypes::Restart)
                Entries.NoteStart(unused);
        } else if (line.starts_with(OperationHeading)) {
            Kind = Generation::Operation;
            const std::string_view version = Right(line, SupportedVersion.size());
            if (version != SupportedVersion)
                WarnOfVersion(version);
        } else {
            File.RewindFile();
        }
    }

    // Calls `note` with the place of the first line, in bytes, of each event that was read; false ends the
    // read.
    template <typename Note>
    void ReadEntries(const Note& note) {
        std::string_view line;
        while (!File.EndOfFile()) {
            if (File.KeepsLines()) {
                Entries.KeepLast();
                File.ReleaseLines();
            }
            const std::int64_t place = File.FileSize() - File.FileLeft();
            File.ReadLine(line);
            ShowProgress();
            ParsedEntry& entry = Entries.Working();
            ParseLine(line, entry);
            if (entry.EventType == EventTypes::None)
                continue;
            Entries.Store();
            if (!note(place))
                return;
        }
    }

  private:
    void ParseLine(std::string_view line, ParsedEntry& entry) {
        switch (Kind) {
        case Generation::Classic:
            ParseClassicLine(line, entry, File, Progress, Headers);
            break;
        case Generation::Separated:
            ParseSeparatedLine(line, entry, File, Date, Headers);
            break;
        case Generation::Operation:
            ParseOperationLine(line, entry, File, Headers);
            break;
        }
    }

    // The message is German in both languages.
    void WarnOfVersion(std::string_view version) {
        Progress.ShowMessage("Logbuch Version " + Code.ToUtf8(version) +
                             " wird von dieser Kelvaro Version nicht unterstützt.\r\n"
                             "Informieren Sie sich bei VELTRANDOR über die neueste Kelvaro Version.");
    }

    void ShowProgress() {
        constexpr std::int64_t Step = 100; // stored entries
        if (Entries.Count() - LastShown <= Step)
            return;
        LastShown = Entries.Count();
        const std::int64_t position = File.CurrentPosition();
        if (position >= File.FileSize())
            return;
        Progress.SetValue(static_cast<double>(position) / static_cast<double>(File.FileSize()) * 100.0);
        LetEventsRun(Progress);
    }

    clsFile& File;
    KnownHeaders& Headers;
    Collector& Entries;
    ReadingProgress& Progress;
    const CodePage& Code;
    Generation Kind = Generation::Classic;
    SeparatorDate Date;
    std::int64_t LastShown = 0;
};

// The error exit: LoadState keeps the phase, and the table keeps what has been stored.
bool EndUnfinished(Logbook& logbook, EntryCollector& entries) {
    try {
        entries.End();
    } catch (const RunTimeError&) {
        // Out of memory: the last entry has no room either.
    }
    if (logbook.LoadState == LoadStates::Reading)
        logbook.EntryCount = logbook.Entries.Count();
    return false;
}

} // namespace

bool ReadLogbook(const std::string& path, Logbook& logbook, std::string& title, ReadingProgress& progress,
                 const CodePage& codePage) {
    logbook.LoadState = LoadStates::Opening;
    // File and headers outlive the collector: the last entry's texts may still point into them when the error
    // exit hands it to the table.
    clsFile file;
    file.TellProgress(progress);
    KnownHeaders headers;
    EntryCollector entries(logbook.Entries, logbook.Starts, codePage);
    try {
        if (!file.OpenFile(path, clsFile::IfEmpty::Close)) {
            logbook.LoadState = LoadStates::Done;
            logbook.Entries.ResetToOneEmpty(0, Images::None);
            logbook.Starts.clear();
            return false;
        }
        entries.Begin(file.FileSize());
        Reading reading(file, headers, entries, progress, codePage);
        reading.Begin();

        std::string folder;
        SplitPath(path, folder, title);
        logbook.LoadState = LoadStates::Reading;
        logbook.EntryCount = 0;
        reading.ReadEntries([](std::int64_t) { return true; });
        entries.End();
    } catch (const RunTimeError&) {
        return EndUnfinished(logbook, entries);
    } catch (const std::bad_alloc&) {
        return EndUnfinished(logbook, entries);
    }
    logbook.LoadState = LoadStates::Done;
    if (logbook.Entries.Count() == 0)
        logbook.Entries.ResetToOneEmpty(EventTypes::None, Images::Info);
    logbook.EntryCount = logbook.Entries.Count();
    progress.SetValue(0);
    return true;
}

bool ReadEntryPlaces(const std::string& path, ReadingProgress& progress, const TakeEntryPlace& take) {
    clsFile file;
    file.TellProgress(progress);
    KnownHeaders headers;
    EntryCounter entries;
    const CodePage codePage;
    try {
        if (!file.OpenFile(path, clsFile::IfEmpty::Close))
            return false;
        Reading reading(file, headers, entries, progress, codePage);
        reading.Begin();
        std::int64_t taken = 0;
        reading.ReadEntries([&](std::int64_t place) {
            if (entries.Count() == taken)
                return true;
            return take(taken++, static_cast<std::uint64_t>(place));
        });
    } catch (const RunTimeError&) {
        return false;
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}
