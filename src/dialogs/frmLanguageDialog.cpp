// SPDX-License-Identifier: MIT
#include "dialogs/frmLanguageDialog.h"

#include "list/QtText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace {
// A row's place is the stored number. There is no row for Hungarian, so "Dutch" has its number; the stored
// numbers depend on that.
constexpr std::array<TextId, 11> Rows{
    TextId::LanguageEnglish, TextId::LanguageGerman,  TextId::LanguageItalian, TextId::LanguageSpanish,
    TextId::LanguageFrench,  TextId::LanguageSwedish, TextId::LanguageFinnish, TextId::LanguageCzech,
    TextId::LanguagePolish,  TextId::LanguageDanish,  TextId::LanguageDutch};
} // namespace

frmLanguageDialog::frmLanguageDialog(Language language, QWidget* parent)
    : FittedDialog(parent),
      language_(language),
      lblDialogLanguage(new QLabel(this)),
      cbDialogLanguage(new QComboBox(this)),
      lblNote(new QLabel(this)),
      cmdOK(new QPushButton(this)),
      cmdCancel(new QPushButton(this)) {
    setObjectName("frmLanguageDialog");
    lblDialogLanguage->setObjectName("lblDialogLanguage");
    cbDialogLanguage->setObjectName("cbDialogLanguage");
    lblNote->setObjectName("lblNote");
    cmdOK->setObjectName("cmdOK");
    cmdCancel->setObjectName("cmdCancel");
    lblDialogLanguage->setBuddy(cbDialogLanguage);
    lblNote->setWordWrap(true);
    cmdOK->setDefault(true);
    cmdOK->setAutoDefault(true);

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(cmdOK, QDialogButtonBox::AcceptRole);
    buttons->addButton(cmdCancel, QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout;
    layout->addWidget(lblDialogLanguage);
    layout->addWidget(cbDialogLanguage);
    layout->addWidget(lblNote);
    layout->addStretch();
    LayOut(layout, buttons);

    LoadLanguage();
    resize(sizeHint().expandedTo({360, 0}));
}

void frmLanguageDialog::LoadLanguage() {
    setWindowTitle(QtText(TextId::LanguageTitle, language_));
    lblDialogLanguage->setText(QtText(TextId::LanguageLabel, language_));
    lblNote->setText(QtText(TextId::LanguageNote, language_));
    cmdOK->setText(QtText(TextId::ButtonOK, language_));
    cmdCancel->setText(QtText(TextId::ButtonCancel, language_));
    for (const TextId row : Rows)
        cbDialogLanguage->addItem(QtText(row, language_));
    const bool known = language_.Number >= 0 && language_.Number < cbDialogLanguage->count();
    cbDialogLanguage->setCurrentIndex(known ? language_.Number : -1);
}

std::optional<Language> frmLanguageDialog::Choice() const {
    if (result() != Accepted || cbDialogLanguage->currentIndex() < 0)
        return std::nullopt;
    return Language{cbDialogLanguage->currentIndex()};
}
