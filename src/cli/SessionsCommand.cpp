// SPDX-License-Identifier: MIT
#include "cli/SessionsCommand.h"

#include "cli/HistoryTexts.h"
#include "cli/PlainTable.h"
#include "cli/PrintedHistory.h"
#include "cli/RecordWriter.h"
#include "history/SessionRemarks.h"
#include "history/Sessions.h"
#include "settings/Texts.h"

#include <CLI/CLI.hpp>

namespace {

using ColumnSide = PlainTable::Side;

constexpr std::size_t SessionsWidth = 1000; // of the text form, in characters: nothing of a remark is cut

// The sessions of a document, and the words for them.
class SessionList {
  public:
    SessionList(const TerminalDocument& document, ErrorKeys keys, Language language)
        : entries_(document.Entries()),
          sessions_(SessionsOf(entries_, document.Book().Starts)),
          keys_(std::move(keys)),
          language_(language) {}

    void Write(const RowForm& form, std::ostream& stream) const {
        if (form.Format == "text")
            return WriteText(stream);
        WriteRecords(
            sessions_.size(), [this](std::size_t place) { return RecordOf(place); }, Names, form, stream);
    }

  private:
    std::string Say(TextId id) const { return std::string(Text(id, language_)); }

    Record RecordOf(std::size_t place) const {
        const Session& session = sessions_[place];
        const bool hasEntries = session.EntryCount() > 0;
        Record record;
        record["session"] = place + 1;
        record["start"] = IsoOrNull(session.Start);
        record["start_recorded"] = session.StartRecorded;
        record["first_index"] = hasEntries ? Record(session.First) : Record();
        record["last_index"] = hasEntries ? Record(session.End - 1) : Record();
        record["entries"] = session.EntryCount();
        record["last_entry"] = IsoOrNull(session.LastEntry);
        record["recorded_seconds"] = SecondsOrNull(session.Recorded);
        record["to_next_seconds"] = SecondsOrNull(session.ToNext);
        record["errors"] = session.Errors;
        record["warnings"] = session.Warnings;
        record["clock_steps"] = session.ClockSteps;
        record["last_error"] = Record();
        if (session.LastError)
            record["last_error"] = {{"index", *session.LastError},
                                    {"key", KeyOf(entries_, keys_, *session.LastError)},
                                    {"seconds_before_end", SecondsOrNull(session.LastErrorBeforeEnd)}};
        return record;
    }

    // Starts that nothing follows are one line together.
    void WriteText(std::ostream& stream) const {
        PlainTable table({{Say(TextId::HistorySession), 7, 15, ColumnSide::Right},
                          {Say(TextId::HistoryStart), 23, 23},
                          {Say(TextId::HistoryRecorded), 8, 12, ColumnSide::Right},
                          {Say(TextId::HistoryToNext), 8, 12, ColumnSide::Right},
                          {Say(TextId::HistoryEntries), 7, 10, ColumnSide::Right},
                          {Say(TextId::HistoryErrors), 6, 10, ColumnSide::Right},
                          {Say(TextId::HistoryWarnings), 5, 10, ColumnSide::Right},
                          {Say(TextId::HistoryRemarks), 0, SessionsWidth}});
        for (std::size_t i = 0; i < sessions_.size();) {
            std::size_t end = i;
            while (end < sessions_.size() && IsMereStart(sessions_[end]))
                ++end;
            if (end - i > 1) {
                table.AddLine({std::to_string(i + 1) + '-' + std::to_string(end), StartsInSeconds(i, end)});
                i = end;
            } else {
                table.AddLine(TextLine(i));
                ++i;
            }
        }
        table.Write(stream, SessionsWidth);
        const auto hours = [this](const std::optional<Session::Duration>& time) {
            return time ? DecimalText(static_cast<double>(time->count()) / 3'600'000.0, 2, language_)
                        : std::string("-");
        };
        stream << Say(TextId::HistoryRecordedHours) << hours(RecordedTime(sessions_))
               << Say(TextId::HistoryAtMost) << hours(MostTime(sessions_)) << '\n';
    }

    // A start with nothing to say but its time.
    static bool IsMereStart(const Session& session) {
        return session.EntryCount() == 0 && session.Start && session.ClockSteps == 0;
    }

    std::string StartsInSeconds(std::size_t begin, std::size_t end) const {
        const Stamp first = sessions_[begin].Start.value_or(Stamp{});
        const Stamp last = sessions_[end - 1].Start.value_or(Stamp{});
        return std::to_string(end - begin) + ' ' + Say(TextId::HistoryStarts) + ' ' + Say(TextId::HistoryIn) +
               ' ' + SecondsText(TimeBetween(first, last)) + " s, " + Say(TextId::HistoryFrom) + ' ' +
               ReadableText(first);
    }

    std::string SecondsText(std::chrono::milliseconds time) const {
        const int decimals = time.count() % 1000 == 0 ? 0 : 3;
        return DecimalText(static_cast<double>(time.count()) / 1000.0, decimals, language_);
    }

    std::vector<std::string> TextLine(std::size_t place) const {
        const Session& session = sessions_[place];
        return {std::to_string(place + 1),
                StartText(session, language_),
                ClockText(session.Recorded),
                ClockText(session.ToNext),
                std::to_string(session.EntryCount()),
                std::to_string(session.Errors),
                std::to_string(session.Warnings),
                SessionRemarks(session, entries_, keys_, language_)};
    }

    static const Record Names;

    const EntryTable& entries_;
    std::vector<Session> sessions_;
    ErrorKeys keys_;
    Language language_;
};

const Record SessionList::Names = {{"session", 0},
                                   {"start", 0},
                                   {"start_recorded", 0},
                                   {"first_index", 0},
                                   {"last_index", 0},
                                   {"entries", 0},
                                   {"last_entry", 0},
                                   {"recorded_seconds", 0},
                                   {"to_next_seconds", 0},
                                   {"errors", 0},
                                   {"warnings", 0},
                                   {"clock_steps", 0},
                                   {"last_error", {{"index", 0}, {"key", 0}, {"seconds_before_end", 0}}}};

} // namespace

CLI::App* AddSessionsCommand(CLI::App& app, HistoryOptions& options) {
    CLI::App* command = app.add_subcommand(
        "sessions", "Print what a logbook records from each start of the control to the next");
    AddHistoryOptions(*command, options);
    return command;
}

int RunSessions(const HistoryOptions& options) {
    return PrintHistory(options, {}, [&](const TerminalDocument& document) {
        return SessionList(document, ReadErrorKeys(options), options.MessageLanguage);
    });
}
