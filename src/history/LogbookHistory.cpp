// SPDX-License-Identifier: MIT
#include "history/LogbookHistory.h"

#include "eventinfo/iZEKEventInfo.h"
#include "history/SessionRemarks.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr std::size_t EntriesAtOnce = 16384;
constexpr std::chrono::milliseconds TimeAtOnce{12};

ErrorKeys KeysOf(std::span<const std::string> languageFolders) {
    FacilityFileMistake ignored;
    return ErrorKeys(FacilitiesIn(languageFolders, ignored));
}

} // namespace

LogbookHistory::LogbookHistory(const Logbook& logbook, std::vector<std::string> languageFolders)
    : logbook_(logbook),
      languageFolders_(std::move(languageFolders)),
      keys_(KeysOf(languageFolders_)),
      sessionsRun_(logbook.Entries, logbook.Starts),
      strip_(logbook.Entries) {}

bool LogbookHistory::Go() {
    const auto begin = std::chrono::steady_clock::now();
    while (phase_ != Phase::Done && std::chrono::steady_clock::now() - begin < TimeAtOnce)
        GoOn();
    return phase_ != Phase::Done;
}

void LogbookHistory::GoOn() {
    const auto goTo = [this](Phase phase) {
        phase_ = phase;
        taken_ = 0;
    };
    switch (phase_) {
    case Phase::Sessions:
        taken_ += EntriesAtOnce;
        if (sessionsRun_.Go(EntriesAtOnce))
            return;
        sessions_ = sessionsRun_.Take();
        return goTo(Phase::Strip);
    case Phase::Strip:
        taken_ += EntriesAtOnce;
        if (strip_.Go(EntriesAtOnce))
            return;
        spans_ = SpansOf(sessions_, strip_);
        errorsRun_ = std::make_unique<ErrorsRun>(logbook_.Entries, sessions_, keys_, choice_);
        return goTo(Phase::Errors);
    case Phase::Errors:
        taken_ += EntriesAtOnce;
        if (errorsRun_->Go(EntriesAtOnce))
            return;
        TakeErrors();
        return goTo(Phase::Texts);
    case Phase::Texts:
        if (taken_ < errors_.size()) {
            ExplainedError& error = errors_[taken_++];
            const ErrorTexts texts = FullTexts(error.Record);
            error.English = FirstLine(texts.English);
            error.German = FirstLine(texts.German);
            return;
        }
        return goTo(Phase::Done);
    case Phase::Done:
        return;
    }
}

void LogbookHistory::TakeErrors() {
    std::vector<ErrorRecord> records = errorsRun_->Take();
    errorsRun_.reset();
    errors_.reserve(records.size());
    for (ErrorRecord& record : records)
        errors_.push_back({.Record = std::move(record), .English = {}, .German = {}});
}

double LogbookHistory::Percent() const {
    const std::size_t all = phase_ == Phase::Texts ? errors_.size() : logbook_.Entries.Count();
    const double share = all == 0 ? 0 : std::min(1.0, static_cast<double>(taken_) / static_cast<double>(all));
    return phase_ == Phase::Done ? 100 : (static_cast<double>(phase_) + share) * 25;
}

std::optional<std::size_t> LogbookHistory::ErrorOf(EntryNumber entry) const {
    if (!strip_.Errors().Contains(entry) && !strip_.Warnings().Contains(entry))
        return std::nullopt;
    const std::string key = KeyOf(logbook_.Entries, keys_, entry);
    const auto error = std::find_if(errors_.begin(), errors_.end(),
                                    [&](const ExplainedError& e) { return e.Record.Key == key; });
    if (error == errors_.end())
        return std::nullopt;
    return static_cast<std::size_t>(error - errors_.begin());
}

ErrorTexts LogbookHistory::FullTexts(const ErrorRecord& error) const {
    return TextsOf(error, logbook_.Entries, languageFolders_);
}
