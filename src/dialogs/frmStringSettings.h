// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/FittedDialog.h"
#include "filter/FilterDefinition.h"
#include "rows/SortDirection.h"

#include <cstdint>
#include <vector>

class DialogList;
class QLabel;
class Registry;

// The list of predefined strings: the person edits it and picks one.
class frmStringSettings : public FittedDialog {
    Q_OBJECT

  public:
    // Shows the string filters that have a string. Each change of the rows sets `stringFilters` to exactly
    // these rows, in their order. The change reaches the settings with the filter list; Cancel does not undo
    // it.
    frmStringSettings(Registry& registry, Language language, std::vector<StringFilter>& stringFilters,
                      QWidget* parent = nullptr);

    // The string of the row that was selected at OK; "" when no row was selected, and after Cancel.
    QString ResultText() const { return resultText_; }

    void accept() override;
    void done(int result) override;

  private:
    void LoadLanguage();
    void Add();
    void Edit();
    void Remove();
    void SortByColumn(int column);
    void RowsChanged();
    std::vector<StringFilter> Rows() const;

    Registry& registry_;
    Language language_;
    std::vector<StringFilter>& stringFilters_;
    QLabel* lblFilterStrings;
    DialogList* lvFilterStrings;
    int lastSortColumn_ = 0;
    SortDirection direction_ = SortDirection::Ascending;
    QString resultText_;
};
