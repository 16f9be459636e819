// SPDX-License-Identifier: MIT
#pragma once

#include "sources/UserInterface.h"

#include <deque>
#include <string>
#include <vector>

// A person whose answers are written down beforehand. Remembers what was said; without an answer left,
// cancels.
class ScriptedUser : public UserInterface {
  public:
    void ShowMessage(std::string_view text, MessageIcon icon) override {
        Messages.emplace_back(text);
        Icons.push_back(icon);
    }
    Answer Ask(TextId question) override {
        Questions.push_back(question);
        return Next(Answers, Answer::Cancel);
    }
    bool Confirm(std::string_view question) override {
        Confirmed.emplace_back(question);
        return Next(Answers, Answer::Cancel) == Answer::Yes;
    }
    std::optional<std::string> AskFileToOpen(const FileRequest& request) override {
        Requests.push_back(request);
        return Next(Files, std::optional<std::string>());
    }
    std::optional<std::string> AskFileToSave(const FileRequest& request) override {
        return AskFileToOpen(request);
    }
    void ShowStatus(TextId status) override {
        Statuses.push_back(status);
        ++OpenStatuses;
    }
    void RestoreStatus() override { --OpenStatuses; }
    void ShowProgress(double percent) override { Progress.push_back(percent); }

    std::deque<Answer> Answers;
    std::deque<std::optional<std::string>> Files;
    std::vector<std::string> Messages;
    std::vector<MessageIcon> Icons;
    std::vector<TextId> Questions;
    std::vector<std::string> Confirmed;
    std::vector<FileRequest> Requests;
    std::vector<TextId> Statuses;
    int OpenStatuses = 0; // shown and not yet restored
    std::vector<double> Progress;

  private:
    template <typename Value>
    static Value Next(std::deque<Value>& values, Value otherwise) {
        if (values.empty())
            return otherwise;
        const Value value = values.front();
        values.pop_front();
        return value;
    }
};
