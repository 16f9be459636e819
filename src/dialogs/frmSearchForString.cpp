// SPDX-License-Identifier: MIT
#include "dialogs/frmSearchForString.h"

#include "list/QtText.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

frmSearchForString::frmSearchForString(const SearchState& last, Language language, QWidget* parent)
    : FittedDialog(parent),
      lblSearchString(new QLabel(this)),
      tbSearchString(new QLineEdit(this)),
      checkboxWholeWord(new QCheckBox(this)),
      checkboxCaseSensitive(new QCheckBox(this)),
      frameDirection(new QGroupBox(this)),
      obAscending(new QRadioButton(frameDirection)),
      obDescending(new QRadioButton(frameDirection)),
      cmdOK(new QPushButton(this)),
      cmdCancel(new QPushButton(this)) {
    NameControls();
    lblSearchString->setBuddy(tbSearchString);
    tbSearchString->installEventFilter(this);
    cmdOK->setDefault(true);
    LayControlsOut();
    LoadLanguage(language);
    ShowSearch(last);
    resize(sizeHint().expandedTo({420, 0}));
}

void frmSearchForString::NameControls() {
    setObjectName("frmSearchForString");
    lblSearchString->setObjectName("lblSearchString");
    tbSearchString->setObjectName("tbSearchString");
    checkboxWholeWord->setObjectName("checkboxWholeWord");
    checkboxCaseSensitive->setObjectName("checkboxCaseSensitive");
    frameDirection->setObjectName("frameDirection");
    obAscending->setObjectName("obAscending");
    obDescending->setObjectName("obDescending");
    cmdOK->setObjectName("cmdOK");
    cmdCancel->setObjectName("cmdCancel");
}

void frmSearchForString::LayControlsOut() {
    auto* directions = new QVBoxLayout(frameDirection);
    directions->addWidget(obAscending);
    directions->addWidget(obDescending);

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(cmdOK, QDialogButtonBox::AcceptRole);
    buttons->addButton(cmdCancel, QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QGridLayout;
    layout->addWidget(lblSearchString, 0, 0);
    layout->addWidget(tbSearchString, 0, 1, 1, 2);
    layout->addWidget(checkboxWholeWord, 1, 0, 1, 2);
    layout->addWidget(checkboxCaseSensitive, 2, 0, 1, 2);
    layout->addWidget(frameDirection, 1, 2, 2, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(3, 1);
    LayOut(layout, buttons);
}

void frmSearchForString::LoadLanguage(Language language) {
    setWindowTitle(QtText(TextId::SearchTitle, language));
    lblSearchString->setText(QtText(TextId::lblSearchString, language));
    checkboxWholeWord->setText(QtText(TextId::checkboxWholeWord, language));
    checkboxCaseSensitive->setText(QtText(TextId::checkboxCaseSensitive, language));
    frameDirection->setTitle(QtText(TextId::frameDirection, language));
    obAscending->setText(QtText(TextId::obAscending, language));
    obDescending->setText(QtText(TextId::obDescending, language));
    cmdOK->setText(QtText(TextId::ButtonFind, language));
    cmdCancel->setText(QtText(TextId::ButtonCancel, language));
}

void frmSearchForString::ShowSearch(const SearchState& search) {
    tbSearchString->setText(ToQString(search.SearchText));
    checkboxWholeWord->setChecked(search.SearchWholeWord != 0);
    checkboxCaseSensitive->setChecked(search.SearchCaseSensitive != 0);
    (search.SearchUp ? obAscending : obDescending)->setChecked(true);
    tbSearchString->setFocus();
}

std::optional<SearchState> frmSearchForString::Search() const {
    if (result() != Accepted)
        return std::nullopt;
    return SearchState{.SearchText = tbSearchString->text().toStdString(),
                       .SearchUp = obAscending->isChecked(),
                       .SearchWholeWord = checkboxWholeWord->isChecked(),
                       .SearchCaseSensitive = checkboxCaseSensitive->isChecked()};
}

bool frmSearchForString::eventFilter(QObject* watched, QEvent* event) {
    // The box's own menu gives the focus back; the chosen item then decides the selection. A click would undo
    // the selection at once, so the selection comes after the click.
    if (event->type() == QEvent::FocusIn &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
        QMetaObject::invokeMethod(tbSearchString, &QLineEdit::selectAll, Qt::QueuedConnection);
    return QDialog::eventFilter(watched, event);
}
