// SPDX-License-Identifier: MIT
#include "dialogs/frmErrorTexts.h"

#include "base/Paths.h"
#include "dialogs/DialogButtons.h"
#include "dialogs/DialogList.h"
#include "dialogs/ElidedLabel.h"
#include "dialogs/FieldNote.h"
#include "dialogs/FileTypes.h"
#include "list/QtText.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int FoundColumns = 4; // files, English, German, replaced

QString Joined(const std::vector<std::string>& names) {
    QStringList list;
    for (const std::string& name : names)
        list << ToQString(name);
    return list.join(", ");
}

} // namespace

frmErrorTexts::frmErrorTexts(Language language, const std::string& ownFolder, std::string folder,
                             Search search, QWidget* parent)
    : FittedDialog(parent),
      language_(language),
      folder_(std::move(folder)),
      search_(std::move(search)),
      lblWhere(new QLabel(this)),
      cmdFolder(new QPushButton(this)),
      cmdArchive(new QPushButton(this)),
      lblPlace(new ElidedLabel(1, this)),
      lblFound(new QLabel(this)),
      lvFound(new DialogList(FoundColumns, this)),
      lblNote(new FieldNote("lblNote", lvFound)),
      lblOwnFolder(new ElidedLabel(1, this)) {
    setObjectName("frmErrorTexts");
    setSizeGripEnabled(true);
    lblWhere->setObjectName("lblWhere");
    cmdFolder->setObjectName("cmdFolder");
    cmdArchive->setObjectName("cmdArchive");
    lblPlace->setObjectName("lblPlace");
    lblFound->setObjectName("lblFound");
    lblFound->setBuddy(lvFound);
    lvFound->setObjectName("lvFound");
    lvFound->setSelectionMode(QAbstractItemView::SingleSelection);
    lblOwnFolder->setObjectName("lblOwnFolder");

    QDialogButtonBox* const buttons = OkAndCancel(language, *this);
    cmdOK = buttons->findChild<QPushButton*>("cmdOK");
    cmdOK->setEnabled(false);
    auto* const places = new QHBoxLayout;
    places->addWidget(cmdFolder);
    places->addWidget(cmdArchive);
    places->addStretch();
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(lblWhere);
    layout->addLayout(places);
    layout->addWidget(lblPlace);
    layout->addWidget(lblFound);
    layout->addWidget(lvFound);
    layout->addWidget(lblOwnFolder);
    layout->addWidget(lblNote);
    layout->addWidget(buttons);

    LoadLanguage();
    lblOwnFolder->setText(QtText(TextId::ErrorTextsTarget, language_) + ToQString(ownFolder));
    connect(cmdFolder, &QPushButton::clicked, this, [this] { Choose(false); });
    connect(cmdArchive, &QPushButton::clicked, this, [this] { Choose(true); });
    cmdFolder->setFocus();
    resize(sizeHint().expandedTo({620, 380}));
}

void frmErrorTexts::LoadLanguage() {
    setWindowTitle(QtText(TextId::ErrorTextsTitle, language_));
    lblWhere->setText(QtText(TextId::ErrorTextsWhere, language_));
    cmdFolder->setText(QtText(TextId::cmdErrorTextsFolder, language_));
    cmdArchive->setText(QtText(TextId::cmdErrorTextsArchive, language_));
    lblFound->setText(QtText(TextId::ErrorTextsFound, language_));
    lvFound->setAccessibleName(QtPlainText(TextId::ErrorTextsFound, language_));
    lvFound->setHeaderLabels(
        {QtText(TextId::ErrorTextsFiles, language_), QtText(TextId::HistoryEnglish, language_),
         QtText(TextId::HistoryGerman, language_), QtText(TextId::ErrorTextsReplaced, language_)});
}

void frmErrorTexts::Choose(bool archive) {
    QFileDialog dialog(this, QtText(TextId::ErrorTextsTitle, language_), ToQString(folder_));
    dialog.setObjectName("dlgCommonDialog");
    dialog.setWindowModality(Qt::WindowModal); // also where it is the desktop's own; the help stays usable
    dialog.setFileMode(archive ? QFileDialog::ExistingFile : QFileDialog::Directory);
    if (archive)
        SetFileTypes(dialog, QtText(TextId::ErrorTextsArchiveFilter, language_));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    const std::string place = ToNativePath(dialog.selectedFiles().constFirst());
    std::string name;
    SplitPath(place, folder_, name);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const ErrorTextPlan plan = search_(place);
    QApplication::restoreOverrideCursor();
    ShowFound(place, plan);
    lvFound->setFocus();
}

void frmErrorTexts::ShowFound(const std::string& place, const ErrorTextPlan& plan) {
    lblPlace->setText(ToQString(place));
    lvFound->clear();
    for (std::size_t kind = 0; kind < plan.Kinds.size(); ++kind) {
        const ErrorTextPlan::Row& found = plan.Kinds[kind];
        auto* const row = new QTreeWidgetItem(lvFound);
        row->setText(0, QtText(ErrorTextKindNames[kind], language_));
        int column = 0;
        for (const std::size_t count : {found.English, found.German, found.Replaced}) {
            row->setText(++column, QString::number(count));
            row->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        }
    }
    lvFound->SelectAndShow(lvFound->topLevelItem(0));
    for (int column = 0; column < FoundColumns; ++column)
        lvFound->resizeColumnToContents(column);
    QStringList note;
    if (!plan.Problem.empty())
        note << ToQString(plan.Problem);
    else if (plan.IsEmpty())
        note << QtText(TextId::ErrorTextsNone, language_);
    if (!plan.Replaced.empty())
        note << QtText(TextId::ErrorTextsReplaces, language_) + Joined(plan.Replaced);
    if (!plan.TooLarge.empty())
        note << QtText(TextId::ErrorTextsTooLarge, language_) + Joined(plan.TooLarge);
    lblNote->Say(note.join('\n'));
    cmdOK->setEnabled(!plan.IsEmpty());
}
