// SPDX-License-Identifier: MIT
#pragma once

#include "app/QtCatalogue.h"
#include "app/WindowProgress.h"
#include "app/WindowUser.h"
#include "list/LogbookModel.h"
#include "logbook/CodePage.h"
#include "logbook/Logbook.h"
#include "settings/Registry.h"
#include "settings/Texts.h"
#include "sources/TempFolder.h"

#include <QMainWindow>

#include <string>
#include <vector>

class QAction;
class QLabel;
class QMenu;
class QProgressBar;
class QStatusBar;
class QTableView;

// The program's main window: it shows one logbook as a list.
class frmMain : public QMainWindow {
    Q_OBJECT

  public:
    // The logbook, the settings and the temporary folder must outlive the window.
    frmMain(Logbook& logbook, Registry& registry, const TempFolder& tempFolder, CodePage codePage);

    // Opens the logbooks that a command line names, one after the other, each in place of the one before; the
    // last that opens stays. Shows the usage where the command line asks for it.
    void RunCommandLine(const std::vector<std::string>& arguments);

    // Opens one source: a logbook file, a service archive or an own archive. False when the person cancelled
    // or the read was left unfinished; the title then stays as it was.
    bool OpenLogbook(const std::string& path);

    // Reads a logbook file and fills the list. False when a run-time error left it unfinished, which the user
    // has then been told. A file that cannot be opened gives an empty list without a message.
    bool ReadAndShowLogbook(const std::string& file);

    // Filters the entries again with the stored filters, and selects the row of the entry that was selected,
    // or the next one.
    void ApplyFilter();

    // Asks for the dialog language; another one is stored and applies at once.
    void ChooseLanguage();

  protected:
    // While a logbook is being read, closing ends the read first.
    void closeEvent(QCloseEvent* event) override;

  private:
    void MakeMenus();
    void LoadLanguage();
    void FillList();
    void ReplaceFilters(const std::string& filterFile);
    void SelectEntry(EntryNumber number);
    void ShowStatus(TextId text);
    void ShowLogbookStatus(std::int64_t total);
    void ShowLogbookError(std::int16_t code);
    void AddNameToTitle(const QString& name);

    Logbook& logbook_;
    Registry& registry_;
    const TempFolder& tempFolder_;
    CodePage codePage_;
    Language language_;
    QtCatalogue qtCatalogue_;
    QString BaseCaption;
    LogbookModel* model_;
    QTableView* lvLogbook;
    QMenu* mnuExtras = nullptr;
    QAction* mnuExtrasDialogLanguage = nullptr;
    QStatusBar* sbStatusBar;
    QLabel* statusText_;
    QLabel* statusCounts_;
    QProgressBar* ProgressBar;
    WindowProgress progress_;
    WindowUser user_;
};
