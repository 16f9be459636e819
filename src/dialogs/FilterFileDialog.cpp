// SPDX-License-Identifier: MIT
#include "dialogs/FilterFileDialog.h"

#include "base/Paths.h"
#include "dialogs/FileTypes.h"
#include "list/QtText.h"

#include <QFileDialog>

namespace {

std::optional<std::string> Choose(QFileDialog& dialog, std::string& folder, const QString& types) {
    dialog.setObjectName("dlgCommonDialog");
    dialog.setWindowModality(Qt::WindowModal); // also where it is the desktop's own; the help stays usable
    dialog.setDirectory(ToQString(folder));
    SetFileTypes(dialog, types);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    std::string path = ToNativePath(dialog.selectedFiles().constFirst());
    std::string name;
    SplitPath(path, folder, name);
    return path;
}

} // namespace

std::optional<std::string> FilterFileToSave(std::string& folder, Language language, QWidget* parent) {
    QFileDialog dialog(parent, QtText(TextId::ExportFiltersTitle, language));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("fil");
    return Choose(dialog, folder, QtText(TextId::ExportFiltersFilter, language));
}

std::optional<std::string> FilterFileToOpen(std::string& folder, Language language, QWidget* parent) {
    QFileDialog dialog(parent, QtText(TextId::ImportFiltersTitle, language));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Choose(dialog, folder, QtText(TextId::ImportFiltersFilter, language));
}
