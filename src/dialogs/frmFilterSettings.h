// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/FilterDialogContext.h"
#include "dialogs/FittedDialog.h"

#include <span>
#include <vector>

class FieldNote;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTimer;

// Defines one filter: which entries it matches and what becomes of them.
class frmFilterSettings : public FittedDialog {
    Q_OBJECT

  public:
    // Begins as a new filter. The person may edit the list of predefined strings from here.
    frmFilterSettings(const FilterDialogContext& context, std::vector<StringFilter>& stringFilters,
                      QWidget* parent = nullptr);

    // Begins with the values of this filter instead.
    void Preset(const FilterDefinition& filter);

    // "OK" after OK, otherwise "".
    QString ResultText() const { return resultText_; }

    // The filter as the controls have it, active. Name and sender are empty where their boxes are disabled:
    // for every type but Info, Warning and Error. So a filter of type "System error" made here looks at
    // neither, while one from the settings or a filter file may.
    FilterDefinition Definition() const;

    // True when one of these filters is the defined one, active or not. Compares exactly.
    bool FilterExists(std::span<const FilterDefinition> rows) const;

    void accept() override;

  private:
    void NameControls();
    void MakeLayout();
    void LoadLanguage();
    void FillLists();
    void TypeChanged();
    void LoadPredefinedStringsToCombo();
    void PutPickedString();
    void EditPredefinedStrings();
    void ShowNotes();

    FilterDialogContext context_;
    std::vector<StringFilter>& stringFilters_;
    QLabel* lblFilterType;
    QComboBox* cbFilterType;
    QLabel* lblEmitter;
    QComboBox* cbEmitter;
    FieldNote* lblEmitterNote;
    QLabel* lblName;
    QComboBox* cbName;
    FieldNote* lblNameNote;
    QLabel* lblStringFilter;
    QComboBox* cbStringFilter;
    FieldNote* lblStringNote;
    QPushButton* cmdPredefinedStrings;
    QGroupBox* frFilterAction;
    QRadioButton* obExcludeFilter;
    QRadioButton* obIncludeFilter;
    QRadioButton* obHighlightFilter;
    QTimer* Timer1;
    std::int16_t unknownType_ = FilterTypes::All; // for as long as no type is chosen
    QString pickedComment_;
    QString resultText_;
};
