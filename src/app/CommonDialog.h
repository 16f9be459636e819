// SPDX-License-Identifier: MIT
#pragma once

#include "settings/UserInterface.h"

#include <QFileDialog>

// The filters of a file dialog, "label|patterns|label|patterns" with the patterns separated by ";", in the
// form that Qt wants.
QStringList NameFilters(const QString& filters);

// Asks for one file to open or to save, in the dialog `dlgCommonDialog`. A file to save need not exist; if it
// does, the dialog asks whether to replace it. Nothing when it was cancelled.
std::optional<std::string> RunCommonDialog(const FileQuestion& question, QFileDialog::AcceptMode mode,
                                           Language language, QWidget* parent);

// The same for a file to save in one of several forms, see UserInterface::AskTypedFileToSave.
std::optional<UserInterface::TypedFile> RunTypedDialog(const FileQuestion& question,
                                                       std::span<const std::string_view> extensions,
                                                       Language language, QWidget* parent);
