// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"
#include "sources/UserInterface.h"

#include <QFileDialog>

class QWidget;

// Shows the common file dialog; nothing on cancel. Before an existing file is chosen to be saved to, the
// person is asked.
std::optional<std::string> ShowFileDialog(const FileRequest& request, QFileDialog::AcceptMode mode,
                                          Language language, QWidget* parent);

// The filters of a dialog: "Logs (*.log)|*.log;*.a" gives "Logs (*.log) (*.log *.a)"; a description that ends
// with its patterns in brackets already is not given them twice.
QStringList NameFilters(const QString& filter);
