// SPDX-License-Identifier: MIT
#include "dialogs/DialogButtons.h"

#include "list/QtText.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

QDialogButtonBox* OkAndCancel(Language language, QDialog& dialog) {
    auto* const buttons = new QDialogButtonBox(&dialog);
    QPushButton* const ok =
        buttons->addButton(QtText(TextId::ButtonOK, language), QDialogButtonBox::AcceptRole);
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    QPushButton* const cancel =
        buttons->addButton(QtText(TextId::ButtonCancel, language), QDialogButtonBox::RejectRole);
    cancel->setObjectName("cmdCancel");
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}
