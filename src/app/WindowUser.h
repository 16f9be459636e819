// SPDX-License-Identifier: MIT
#pragma once

#include "sources/UserInterface.h"

#include <functional>

class QLabel;
class QWidget;

// Opening and saving in the window: message boxes, and the status text in the first panel of the status bar.
class WindowUser : public UserInterface {
  public:
    // `showProgress` is told how much of a longer step is done, in percent.
    WindowUser(QWidget* window, QLabel* statusText, std::function<void(double)> showProgress)
        : window_(window), statusText_(statusText), showProgress_(std::move(showProgress)) {}

    void SetLanguage(Language language) { language_ = language; }

    void ShowMessage(std::string_view text, MessageIcon icon) override;
    Answer Ask(TextId question) override;
    bool Confirm(std::string_view question) override;
    std::optional<std::string> AskFileToOpen(const FileRequest& request) override;
    std::optional<std::string> AskFileToSave(const FileRequest& request) override;
    void ShowStatus(TextId status) override;
    void RestoreStatus() override;
    void ShowProgress(double percent) override { showProgress_(percent); }

  private:
    QWidget* window_;
    QLabel* statusText_;
    std::function<void(double)> showProgress_;
    Language language_;
    std::string savedStatusText_;
};
