// SPDX-License-Identifier: MIT
#include "app/FileDialog.h"

#include "list/QtText.h"

namespace {

// File systems here tell upper and lower case apart, service archives may come with either.
QString InAnyCase(const QString& pattern) {
    QString any;
    for (const QChar c : pattern)
        any += c.isLetter() ? QString("[%1%2]").arg(c.toLower()).arg(c.toUpper()) : QString(c);
    return any;
}

} // namespace

QStringList NameFilters(const QString& filter) {
    const QStringList parts = filter.split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (const QString& pattern : parts[i + 1].split(';'))
            patterns << InAnyCase(pattern);
        const QString shown = parts[i + 1].split(';').join(' ');
        const QString description =
            parts[i].endsWith(" (" + shown + ")") ? parts[i].chopped(shown.size() + 3) : parts[i];
        filters << description + " (" + patterns.join(' ') + ")";
    }
    return filters;
}

std::optional<std::string> ShowFileDialog(const FileRequest& request, QFileDialog::AcceptMode mode,
                                          Language language, QWidget* parent) {
    QFileDialog dialog(parent, QtText(request.Title, language));
    dialog.setObjectName("dlgCommonDialog");
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setNameFilters(NameFilters(QtText(request.Filter, language)));
    dialog.setDefaultSuffix(ToQString(request.DefaultExtension));
    dialog.setDirectory(ToQString(request.Folder));
    if (!request.FileName.empty())
        dialog.selectFile(ToQString(request.FileName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().front().toStdString();
}
