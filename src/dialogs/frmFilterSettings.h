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

// Defines one filter: the entries that it matches and its action on them.
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

    // The filter from the controls, active. Name and sender are empty when their boxes are disabled: for
    // every type but Info, Warning and Error. So a filter of type "System error" made here checks neither,
    // while one from the settings or a filter file may.
    FilterDefinition Definition() const;

    // True when one of these filters equals the defined one, active or not. Compares exactly.
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
