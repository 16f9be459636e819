// SPDX-License-Identifier: MIT
#include "app/CommonDialog.h"

#include "list/QtText.h"

QStringList NameFilters(const QString& filters) {
    const QStringList parts = filters.split('|');
    QStringList nameFilters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        nameFilters << QString("%1 (%2)").arg(parts[i], QString(parts[i + 1]).replace(';', ' '));
    return nameFilters;
}

std::optional<std::string> RunCommonDialog(const FileQuestion& question, QFileDialog::AcceptMode mode,
                                           Language language, QWidget* parent) {
    QFileDialog dialog(parent, QtText(question.Title, language), ToQString(question.Folder));
    dialog.setObjectName("dlgCommonDialog");
    dialog.setWindowModality(Qt::WindowModal); // also where it is the desktop's own; the help stays usable
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    // The labels name the patterns themselves where the user needs them.
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(NameFilters(QtText(question.Filters, language)));
    dialog.setDefaultSuffix(ToQString(question.DefaultExtension));
    if (!question.Name.empty())
        dialog.selectFile(ToQString(question.Name));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst().toStdString();
}
