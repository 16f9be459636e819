// SPDX-License-Identifier: MIT
#pragma once

#include "settings/UserInterface.h"

#include <QString>

#include <functional>
#include <utility>

class QLabel;
class QWidget;

// The user of the window, who is asked by message boxes and file dialogs, and informed by them and by the
// first panel of the status bar.
class WindowUser : public UserInterface {
  public:
    // Its messages and questions have this title.
    WindowUser(QWidget* window, QLabel* statusText, QString title)
        : window_(window), statusText_(statusText), title_(std::move(title)) {}

    void SetLanguage(Language language) { language_ = language; }

    // Is told before each status is shown in place of the text that stands there.
    void SetStatusFollows(std::function<void()> follows) { statusFollows_ = std::move(follows); }

    void ShowMessage(std::string_view text, MessageIcon icon) override;
    void ShowMessage(std::string_view text, const QString& title, MessageIcon icon);
    Answer Ask(TextId question) override;
    std::optional<std::size_t> Choose(std::string_view question,
                                      std::span<const AnswerButton> answers) override;
    bool Confirm(std::string_view question) override;
    std::optional<std::string> AskFileToOpen(const FileQuestion& question) override;
    std::optional<std::string> AskFileToSave(const FileQuestion& question) override;
    std::optional<TypedFile> AskTypedFileToSave(const FileQuestion& question,
                                                std::span<const std::string_view> extensions) override;
    void ShowStatus(TextId status) override;
    void RestoreStatus() override;

  private:
    QWidget* window_;
    QLabel* statusText_;
    QString title_;
    Language language_;
    std::string savedStatusText_;
    std::function<void()> statusFollows_;
};
