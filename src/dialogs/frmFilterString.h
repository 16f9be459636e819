// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/FittedDialog.h"
#include "filter/FilterDefinition.h"

class FieldNote;
class QLabel;
class QLineEdit;

// Edits one predefined string and its comment.
class frmFilterString : public FittedDialog {
    Q_OBJECT

  public:
    frmFilterString(Language language, const StringFilter& filter, QWidget* parent = nullptr);

    // "OK" after OK with both texts filled; "CANCEL" after OK with an empty one, and after Cancel.
    QString ResultText() const { return resultText_; }

    // The texts in the boxes.
    StringFilter Filter() const;

    void accept() override;

  private:
    void LoadLanguage();
    void ShowNote();

    Language language_;
    QLabel* lblString;
    QLineEdit* tbString;
    QLabel* lblComment;
    QLineEdit* tbComment;
    FieldNote* lblNote;
    QString resultText_ = "CANCEL";
};
