// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/FittedDialog.h"
#include "rows/RowMatches.h"
#include "settings/Language.h"

#include <optional>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

// Asks what to search for in the list. Selects all of the text whenever its box gets the focus.
class frmSearchForString : public FittedDialog {
    Q_OBJECT

  public:
    // Shows the last search.
    frmSearchForString(const SearchState& last, Language language, QWidget* parent = nullptr);

    // The search to make, after Find; nothing after Cancel.
    std::optional<SearchState> Search() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void NameControls();
    void LayControlsOut();
    void LoadLanguage(Language language);
    void ShowSearch(const SearchState& search);

    QLabel* lblSearchString;
    QLineEdit* tbSearchString;
    QCheckBox* checkboxWholeWord;
    QCheckBox* checkboxCaseSensitive;
    QGroupBox* frameDirection;
    QRadioButton* obAscending;
    QRadioButton* obDescending;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
};
