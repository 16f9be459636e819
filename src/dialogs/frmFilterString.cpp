// SPDX-License-Identifier: MIT
#include "dialogs/frmFilterString.h"

#include "dialogs/DialogButtons.h"
#include "dialogs/FieldNote.h"
#include "dialogs/SelectingLineEdit.h"
#include "filter/FilterStorage.h"
#include "list/QtText.h"

#include <QDialogButtonBox>
#include <QGridLayout>

frmFilterString::frmFilterString(Language language, const StringFilter& filter, QWidget* parent)
    : FittedDialog(parent),
      language_(language),
      lblString(new QLabel(this)),
      tbString(new SelectingLineEdit(this)),
      lblComment(new QLabel(this)),
      tbComment(new SelectingLineEdit(this)),
      lblNote(new FieldNote("lblNote", tbComment)) {
    setObjectName("frmFilterString");
    lblString->setObjectName("lblString");
    lblString->setBuddy(tbString);
    tbString->setObjectName("tbString");
    lblComment->setObjectName("lblComment");
    lblComment->setBuddy(tbComment);
    tbComment->setObjectName("tbComment");

    auto* layout = new QGridLayout;
    layout->addWidget(lblString, 0, 0);
    layout->addWidget(tbString, 0, 1);
    layout->addWidget(lblComment, 1, 0);
    layout->addWidget(tbComment, 1, 1);
    layout->addWidget(lblNote, 2, 1);
    layout->setRowStretch(3, 1);
    LayOut(layout, OkAndCancel(language, *this));

    LoadLanguage();
    tbString->setText(ToQString(filter.FilterString));
    tbComment->setText(ToQString(filter.Comment));
    for (const QLineEdit* const box : {tbString, tbComment})
        connect(box, &QLineEdit::textChanged, this, &frmFilterString::ShowNote);
    resize(sizeHint().expandedTo({420, 0}));
    ShowNote();
}

void frmFilterString::LoadLanguage() {
    setWindowTitle(QtText(TextId::FilterStringTitle, language_));
    lblString->setText(QtText(TextId::tbString, language_));
    lblComment->setText(QtText(TextId::tbComment, language_));
}

StringFilter frmFilterString::Filter() const {
    return {tbString->text().toStdString(), tbComment->text().toStdString()};
}

void frmFilterString::accept() {
    if (!tbString->text().isEmpty() && !tbComment->text().isEmpty())
        resultText_ = "OK";
    QDialog::accept();
}

void frmFilterString::ShowNote() {
    switch (ObstacleOf(Filter())) {
    case StorageObstacle::None:
        return lblNote->Say({});
    case StorageObstacle::Separator:
        return lblNote->Say(QtText(TextId::StringWithSeparator, language_));
    case StorageObstacle::TooLong:
        return lblNote->Say(QtText(TextId::StringTooLong, language_));
    }
}
