// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/FittedDialog.h"
#include "settings/Language.h"

#include <optional>

class QComboBox;
class QLabel;
class QPushButton;

// Lets the user choose the dialog language.
class frmLanguageDialog : public FittedDialog {
    Q_OBJECT

  public:
    explicit frmLanguageDialog(Language language, QWidget* parent = nullptr);

    // The chosen language after OK; nothing after Cancel, or when no row was selected.
    std::optional<Language> Choice() const;

  private:
    void LoadLanguage();

    Language language_;
    QLabel* lblDialogLanguage;
    QComboBox* cbDialogLanguage;
    QLabel* lblNote;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
};
