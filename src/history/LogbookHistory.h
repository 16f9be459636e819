// SPDX-License-Identifier: MIT
#pragma once

#include "history/ErrorStatistics.h"
#include "history/ErrorTexts.h"
#include "history/Sessions.h"
#include "history/Timeline.h"
#include "logbook/Logbook.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

// An error or warning of a logbook, and the first lines of the control's own texts for it.
struct ExplainedError {
    ErrorRecord Record;
    std::optional<std::string> English;
    std::optional<std::string> German;
};

// What the history says of a logbook: its sessions, its strip of time, its errors and warnings with the
// control's texts. It is made in parts, so that a window stays alive meanwhile and can end it.
class LogbookHistory {
  public:
    // The logbook must outlive this, and may not be read again. Looks error texts up in these
    // folders, in their order.
    LogbookHistory(const Logbook& logbook, std::vector<std::string> languageFolders);

    // Goes on for some milliseconds. False when nothing is left to do.
    bool Go();

    // How much is done, 0 to 100.
    double Percent() const;

    bool IsDone() const { return phase_ == Phase::Done; }

    // All these are complete when it is done.
    const std::vector<Session>& Sessions() const { return sessions_; }
    const std::vector<SessionSpan>& Spans() const { return spans_; }
    const Timeline& Strip() const { return strip_; }
    const std::vector<ExplainedError>& Errors() const { return errors_; }
    const ErrorKeys& Keys() const { return keys_; }

    // The place in Errors() of what an entry is an occurrence of; nothing when it is no error or warning.
    // Costs a look at each error.
    std::optional<std::size_t> ErrorOf(EntryNumber entry) const;

    // All lines of the control's texts for an error.
    ErrorTexts FullTexts(const ErrorRecord& error) const;

  private:
    enum class Phase { Sessions, Strip, Errors, Texts, Done };

    void GoOn();
    void TakeErrors();

    const Logbook& logbook_;
    std::vector<std::string> languageFolders_;
    ErrorKeys keys_;
    Phase phase_ = Phase::Sessions;
    std::size_t taken_ = 0; // entries or errors of the phase
    SessionsRun sessionsRun_;
    Timeline strip_;
    ErrorChoice choice_{.Errors = true, .Warnings = true};
    std::unique_ptr<ErrorsRun> errorsRun_;
    std::vector<Session> sessions_;
    std::vector<SessionSpan> spans_;
    std::vector<ExplainedError> errors_;
};
