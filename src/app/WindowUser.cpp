// SPDX-License-Identifier: MIT
#include "app/WindowUser.h"

#include "app/CommonDialog.h"
#include "list/QtText.h"

#include <QLabel>
#include <QMessageBox>

void WindowUser::ShowMessage(std::string_view text, MessageIcon icon) { ShowMessage(text, title_, icon); }

void WindowUser::ShowMessage(std::string_view text, const QString& title, MessageIcon icon) {
    QMessageBox box(icon == MessageIcon::Exclamation ? QMessageBox::Warning : QMessageBox::NoIcon, title,
                    ToQString(text), QMessageBox::Ok, window_);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

bool WindowUser::Confirm(std::string_view question) {
    QMessageBox box(QMessageBox::Warning, title_, ToQString(question), QMessageBox::Yes | QMessageBox::No,
                    window_);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

std::optional<std::string> WindowUser::AskFileToOpen(const FileQuestion& question) {
    return RunCommonDialog(question, QFileDialog::AcceptOpen, language_, window_);
}

std::optional<std::string> WindowUser::AskFileToSave(const FileQuestion& question) {
    return RunCommonDialog(question, QFileDialog::AcceptSave, language_, window_);
}

UserInterface::Answer WindowUser::Ask(TextId question) {
    const auto answer =
        QMessageBox::question(window_, title_, QtText(question, language_),
                              QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    return answer == QMessageBox::Yes ? Answer::Yes : answer == QMessageBox::No ? Answer::No : Answer::Cancel;
}

void WindowUser::ShowStatus(TextId status) {
    savedStatusText_ = statusText_->text().toStdString();
    statusText_->setText(QtText(status, language_));
    statusText_->repaint();
}

void WindowUser::RestoreStatus() {
    statusText_->setText(QString::fromStdString(savedStatusText_));
    statusText_->repaint();
}
