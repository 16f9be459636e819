// SPDX-License-Identifier: MIT
#include "dialogs/FileTypes.h"

#include <QStringList>

void SetFileTypes(QFileDialog& dialog, const QString& types) {
    const QStringList parts = types.split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(';');
        patterns.replaceInStrings("*.*", "*");
        filters << parts[i] + " (" + patterns.join(' ') + ')';
    }
    // The text in the last brackets is for the dialog alone.
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(filters);
}
