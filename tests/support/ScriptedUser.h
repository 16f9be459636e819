// SPDX-License-Identifier: MIT
#pragma once

#include "settings/UserInterface.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// Answers from a list, and records questions and messages.
class ScriptedUser : public UserInterface {
  public:
    void ShowMessage(std::string_view text, MessageIcon icon) override {
        Messages.emplace_back(text);
        Icons.push_back(icon);
    }
    Answer Ask(TextId question) override {
        Questions.push_back(question);
        if (Answers.empty())
            return Answer::Cancel;
        const Answer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }
    std::optional<std::size_t> Choose(std::string_view question,
                                      std::span<const AnswerButton> answers) override {
        Choices.emplace_back(question);
        ChoiceCounts.push_back(answers.size());
        if (WhileChoosing)
            WhileChoosing();
        if (Chosen.empty())
            return std::nullopt;
        const std::optional<std::size_t> answer = Chosen.front();
        Chosen.pop_front();
        return answer;
    }
    bool Confirm(std::string_view question) override {
        Confirmations.emplace_back(question);
        return Agrees;
    }
    std::optional<std::string> AskFileToOpen(const FileQuestion& question) override {
        FilesToOpen.push_back(question);
        return File;
    }
    std::optional<std::string> AskFileToSave(const FileQuestion& question) override {
        FilesToSave.push_back(question);
        return File;
    }
    std::optional<TypedFile> AskTypedFileToSave(const FileQuestion& question,
                                                std::span<const std::string_view>) override {
        FilesToSave.push_back(question);
        return File ? std::optional(TypedFile{*File, FileType}) : std::nullopt;
    }
    void ShowStatus(TextId status) override {
        Statuses.push_back(status);
        ++StatusDepth;
    }
    void RestoreStatus() override { --StatusDepth; }

    // The answers to Ask and to Choose in their order, then Cancel; to Confirm; and to a question for a file.
    std::deque<Answer> Answers;
    std::deque<std::optional<std::size_t>> Chosen;
    std::function<void()> WhileChoosing; // runs during the question
    bool Agrees = false;
    std::optional<std::string> File;
    std::size_t FileType = 0; // of a file to save

    std::vector<std::string> Messages;
    std::vector<MessageIcon> Icons;
    std::vector<TextId> Questions;
    std::vector<std::string> Choices;
    std::vector<std::size_t> ChoiceCounts; // of the offered answers, without Cancel
    std::vector<std::string> Confirmations;
    std::vector<FileQuestion> FilesToOpen;
    std::vector<FileQuestion> FilesToSave;
    std::vector<TextId> Statuses;
    int StatusDepth = 0; // 0 when every status was restored
};
