// SPDX-License-Identifier: MIT
#include "app/CommonDialog.h"

#include "base/AsciiCase.h"
#include "list/QtText.h"

#include <algorithm>

QStringList NameFilters(const QString& filters) {
    const QStringList parts = filters.split('|');
    QStringList nameFilters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        nameFilters << QString("%1 (%2)").arg(parts[i], QString(parts[i + 1]).replace(';', ' '));
    return nameFilters;
}

namespace {

void SetUp(QFileDialog& dialog, const FileQuestion& question, QFileDialog::AcceptMode mode,
           Language language) {
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
}

std::optional<std::string> ChosenFile(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return ToNativePath(dialog.selectedFiles().constFirst());
}

} // namespace

std::optional<std::string> RunCommonDialog(const FileQuestion& question, QFileDialog::AcceptMode mode,
                                           Language language, QWidget* parent) {
    QFileDialog dialog(parent, QtText(question.Title, language), ToQString(question.Folder));
    SetUp(dialog, question, mode, language);
    return ChosenFile(dialog);
}

std::optional<UserInterface::TypedFile> RunTypedDialog(const FileQuestion& question,
                                                       std::span<const std::string_view> extensions,
                                                       Language language, QWidget* parent) {
    QFileDialog dialog(parent, QtText(question.Title, language), ToQString(question.Folder));
    SetUp(dialog, question, QFileDialog::AcceptSave, language);
    const auto chosenType = [&] {
        // A dialog that hides the patterns gives only the label.
        const QStringList types = dialog.nameFilters();
        const auto chosen = std::find_if(types.begin(), types.end(), [&](const QString& type) {
            return type.startsWith(dialog.selectedNameFilter());
        });
        return chosen == types.end() ? 0 : static_cast<std::size_t>(chosen - types.begin());
    };
    const auto takeSuffix = [&] { dialog.setDefaultSuffix(ToQString(extensions[chosenType()])); };
    takeSuffix();
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, takeSuffix);
    const std::optional<std::string> path = ChosenFile(dialog);
    if (!path)
        return std::nullopt;
    const std::string name = LowerCase(*path);
    for (std::size_t type = 0; type < extensions.size(); ++type)
        if (name.ends_with(std::string(".").append(extensions[type])))
            return UserInterface::TypedFile{*path, type};
    return UserInterface::TypedFile{*path, chosenType()};
}
