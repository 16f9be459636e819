// SPDX-License-Identifier: MIT
#include "app/WindowUser.h"

#include "app/CommonDialog.h"
#include "dialogs/MessageBox.h"
#include "list/QtText.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <utility>
#include <vector>

void WindowUser::ShowMessage(std::string_view text, MessageIcon icon) { ShowMessage(text, title_, icon); }

void WindowUser::ShowMessage(std::string_view text, const QString& title, MessageIcon icon) {
    MessageBox box(icon == MessageIcon::Exclamation ? QMessageBox::Warning : QMessageBox::NoIcon, title,
                   ToQString(text), QMessageBox::Ok, window_);
    box.exec();
}

std::optional<std::size_t> WindowUser::Choose(std::string_view question,
                                              std::span<const AnswerButton> answers) {
    MessageBox box(QMessageBox::Warning, title_, ToQString(question), QMessageBox::Cancel, window_,
                   QMessageBox::Cancel);
    std::vector<QAbstractButton*> buttons;
    bool hasSafe = false;
    for (const AnswerButton& answer : answers) {
        QPushButton* const button =
            box.addButton(QtText(answer.Text, language_),
                          answer.Loses ? QMessageBox::DestructiveRole : QMessageBox::AcceptRole);
        buttons.push_back(button);
        if (!answer.Loses && !std::exchange(hasSafe, true))
            box.setDefaultButton(button);
    }
    box.exec();
    const auto clicked = std::find(buttons.begin(), buttons.end(), box.clickedButton());
    if (clicked == buttons.end())
        return std::nullopt;
    return static_cast<std::size_t>(clicked - buttons.begin());
}

bool WindowUser::Confirm(std::string_view question) {
    MessageBox box(QMessageBox::Warning, title_, ToQString(question), QMessageBox::Yes | QMessageBox::No,
                   window_, QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

std::optional<std::string> WindowUser::AskFileToOpen(const FileQuestion& question) {
    return RunCommonDialog(question, QFileDialog::AcceptOpen, language_, window_);
}

std::optional<std::string> WindowUser::AskFileToSave(const FileQuestion& question) {
    return RunCommonDialog(question, QFileDialog::AcceptSave, language_, window_);
}

std::optional<UserInterface::TypedFile>
WindowUser::AskTypedFileToSave(const FileQuestion& question, std::span<const std::string_view> extensions) {
    return RunTypedDialog(question, extensions, language_, window_);
}

UserInterface::Answer WindowUser::Ask(TextId question) {
    MessageBox box(QMessageBox::Question, title_, QtText(question, language_),
                   QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, window_, QMessageBox::Yes);
    const int answer = box.exec();
    return answer == QMessageBox::Yes ? Answer::Yes : answer == QMessageBox::No ? Answer::No : Answer::Cancel;
}

void WindowUser::ShowStatus(TextId status) {
    if (statusFollows_)
        statusFollows_();
    savedStatusText_ = statusText_->text().toStdString();
    statusText_->setText(QtText(status, language_));
    statusText_->repaint();
}

void WindowUser::RestoreStatus() {
    statusText_->setText(QString::fromStdString(savedStatusText_));
    statusText_->repaint();
}
