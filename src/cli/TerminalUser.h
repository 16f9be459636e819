// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Messages.h"
#include "settings/UserInterface.h"

// Opening logbooks on a terminal: messages go to standard error, and the one question has been answered by an
// option. What has no option is not agreed to.
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
    void ShowStatus(TextId) override {}
    void RestoreStatus() override {}

    bool MessageShown() const { return messageShown_; }

  private:
    Answer answer_;
    bool messageShown_ = false;
};
