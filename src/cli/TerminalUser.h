// SPDX-License-Identifier: MIT
#pragma once

#include "base/StopRequest.h"
#include "cli/Messages.h"
#include "logbook/ReadingProgress.h"
#include "settings/UserInterface.h"

#include <string>

// The user of a terminal. Messages go to standard error. An option has answered the one question that is
// asked; all others count as declined.
class TerminalUser : public UserInterface {
  public:
    explicit TerminalUser(Answer answer) : answer_(answer) {}

    void ShowMessage(std::string_view text, MessageIcon) override {
        TellMessage(text);
        messageShown_ = true;
    }
    Answer Ask(TextId) override { return answer_; }
    std::optional<std::size_t> Choose(std::string_view, std::span<const AnswerButton>) override {
        return std::nullopt;
    }
    bool Confirm(std::string_view) override { return false; }
    std::optional<std::string> AskFileToOpen(const FileQuestion&) override { return std::nullopt; }
    std::optional<std::string> AskFileToSave(const FileQuestion&) override { return std::nullopt; }
    std::optional<TypedFile> AskTypedFileToSave(const FileQuestion&,
                                                std::span<const std::string_view>) override {
        return std::nullopt;
    }
    void ShowStatus(TextId) override {}
    void RestoreStatus() override {}

    bool MessageShown() const { return messageShown_; }

  private:
    Answer answer_;
    bool messageShown_ = false;
};

// The progress of a read on a terminal, which is silent. A signal ends the read, and so does a message to the
// user, after which the command fails. Messages about what is read go to standard error, and the read goes
// on.
class TerminalProgress : public ReadingProgress {
  public:
    // The user must outlive this. A partial read ends within a register block where the file does.
    explicit TerminalProgress(const TerminalUser& user, bool partial = false)
        : user_(user), partial_(partial) {}

    void SetValue(double) override {}
    void ProcessPendingEvents() override {}
    bool StopWanted() const override { return StopRequest::IsMade() || user_.MessageShown(); }

    bool WaitsForBlockEnd() const override { return !partial_; }

    void ShowMessage(std::string_view text) override {
        std::string lines(text);
        std::erase(lines, '\r');
        TellMessage(lines, "\n");
    }

  private:
    const TerminalUser& user_;
    bool partial_;
};
