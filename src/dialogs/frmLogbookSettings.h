// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/FilterDialogContext.h"
#include "dialogs/FilterRows.h"
#include "dialogs/FittedDialog.h"

#include <functional>
#include <string>
#include <vector>

class DialogList;
class FieldNote;
class QLabel;
class QPushButton;
class QTimer;
class QTreeWidgetItem;

// Edits the active filter list. The rows are a working copy: only OK and Apply change the settings.
class frmLogbookSettings : public FittedDialog {
    Q_OBJECT

  public:
    // Shows the stored filters. `apply` filters the loaded logbook again; Apply calls it after it has stored
    // the filters.
    frmLogbookSettings(const FilterDialogContext& context, std::function<void()> apply,
                       QWidget* parent = nullptr);

    // "OK" or "CANCEL" once the dialog is closed. After "OK" the caller must filter again.
    QString ResultText() const { return resultText_; }

    // Stores the rows, the predefined strings and the folder of filter files. An empty list is stored as the
    // default list.
    void SaveFilter();

    // Writes the filters that SaveFilter would store to a filter file. False when it wrote no file, because
    // of an error that it has shown, or because the person decided so.
    bool SaveFilterInFile(const std::string& path);

    // Reads a filter file into the rows. Reports a file that is no filter file or cannot be opened, and
    // leaves the rows as they were; a file that fails further down gives the rows up to there.
    void GetFilterFromFile(const std::string& path);

    void accept() override;
    void reject() override;
    void done(int result) override;

  private:
    enum class Command { None, Add, Edit };

    void MakeControls();
    void LoadLanguage();
    void Start(Command command);
    void RunCommand();
    void AddFilter();
    void EditFilter();
    void RemoveFilters();
    void WriteFilterToListItem(const FilterDefinition& filter, QTreeWidgetItem& row);
    void Apply();
    void Export();
    void Import();
    void Warn(const QString& text);
    bool ConfirmEmptyList();
    bool ConfirmLoss(const std::vector<FilterDefinition>& filters);
    void ShowRows(const std::vector<FilterDefinition>& filters);
    std::vector<FilterDefinition> Rows() const;
    std::vector<FilterDefinition> FiltersToStore() const;
    void ShowNote(const QString& aboutFile = {});

    FilterDialogContext context_;
    std::function<void()> apply_;
    FilterRows rows_;
    FilterLists lists_;
    std::string initFilterDir_;
    QLabel* lblFilter;
    DialogList* lvFilter;
    FieldNote* lblNote;
    QPushButton* cmdExport;
    QPushButton* cmdImport;
    QPushButton* cmdApply;
    QTimer* Timer1;
    Command command_ = Command::None;
    QString resultText_;
};
