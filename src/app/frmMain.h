// SPDX-License-Identifier: MIT
#pragma once

#include "app/Commands.h"
#include "app/MainMenus.h"
#include "app/QtCatalogue.h"
#include "app/WindowPlacement.h"
#include "app/WindowProgress.h"
#include "app/WindowUser.h"
#include "base/CodePage.h"
#include "base/TempFolder.h"
#include "comments/CommentJournal.h"
#include "dialogs/HTMLHelp.h"
#include "eventinfo/FacilityFile.h"
#include "filter/FilterDefinition.h"
#include "logbook/Logbook.h"
#include "settings/Registry.h"
#include "settings/Texts.h"
#include "sources/LogbookState.h"
#include "sources/OpenLogbook.h"

#include <QMainWindow>

#include <string>
#include <system_error>
#include <vector>

class LogbookModel;
class LogbookView;
class MainArea;
class MainStatusBar;
class MainToolBar;
class QPlainTextEdit;
class QTimer;
class TagViewer;
class WindowSearch;

// The program's only top-level window: every order of the person enters here. It shows one logbook as a list.
class frmMain : public QMainWindow {
    Q_OBJECT

  public:
    // Places the window as the settings have it. The logbook, the settings, the temporary folder and the
    // journal must outlive the window.
    frmMain(Logbook& logbook, Registry& registry, const TempFolder& tempFolder, CommentJournal& journal,
            CodePage codePage);

    // What happens once, when the window is on the screen: the command line is run, and the content pane is
    // shown where it was shown when the program ended.
    void FirstActivation(const std::vector<std::string>& arguments);

    // Opens the logbooks that a command line names, one after the other, each in place of the one before; the
    // last that opens stays. Shows the usage where the command line asks for it.
    void RunCommandLine(const std::vector<std::string>& arguments);

    // Carries out a command. Those that need an idle logbook do nothing while one is being read.
    void Run(Command command);

    // A click on the button of the tool bar with this key; any other text does nothing.
    void ToolBarButtonClick(const QString& key);

    // Opens one source: a logbook file, a service archive or an own archive; "" asks for it. Before edited
    // comments go, the person is asked about them. False when the person cancelled or the read was left
    // unfinished; the title then stays as it was.
    bool OpenLogbook(std::string name);

    // Reads a logbook file with its comments ("" = none), which messages call by a name, and fills the list.
    // False when a run-time error left
    // it unfinished, which the user has then been told. A file that cannot be opened gives an empty list
    // without a message.
    bool ReadAndShowLogbook(const std::string& file, const std::string& commentsFile,
                            const std::string& commentsName = {});

    // Filters the entries again with the stored filters, and selects the row of the entry that was selected,
    // or the next one. The rows are then in entry order.
    void ApplyFilter();

    // Sorts the list by a column, counted from 0; the selected row stays in view.
    void SortByColumn(int column);

    // Shows the data and the comment of a row, counted from 0, in the content pane.
    void RefreshContentText(int row);

    void RecalculateLayout();

  protected:
    // While a logbook is being read, closing ends the read first.
    void closeEvent(QCloseEvent* event) override;

  private:
    void MakeList();
    void LoadLanguage();
    void Unload();
    bool ExecuteLogbook(std::string& name);
    void ReplaceFilters(const std::string& filterFile, const std::string& name);
    void Refresh();
    std::string ReadComments(const std::string& commentsFile, const std::string& name);
    bool ZipLogbook();
    CommentsOutcome AskToSaveComments();
    void OfferLostComments();
    void NoteComment(EntryNumber number);
    bool FillList();
    void ShowFilterFailed();
    void ShowLogbookStatus();
    void ShowLogbookError(std::int16_t code);
    void ShowContentPane(bool shown);
    void ChooseLanguage();
    void CopySelectedRows();
    void ShowEntryProperties();
    void ShowLookupMistake(const FacilityFileMistake& mistake);
    void ShowNotNoted(std::error_code error);
    void ShowStandingMessage();
    void EditFilters();
    void RemoveSelectedEntries();
    void ToggleSelectedEntries();
    void ShowSelectedContent();
    void ShowHelp(bool shown);
    void AddNameToTitle(const std::string& name);

    Logbook& logbook_;
    Registry& registry_;
    const TempFolder& tempFolder_;
    CommentJournal& journal_;
    CodePage codePage_;
    Language language_;
    FilterTypeLabels filterTypeLabels_;
    QtCatalogue qtCatalogue_;
    QString BaseCaption;
    LogbookState state_;
    FacilityFileMistake lookupMistake_; // these two stand in the status bar
    std::error_code notNoted_;
    WindowPlacement placement_;
    bool ViewContents;
    bool Activated = false;
    LogbookModel* model_;
    LogbookView* lvLogbook;
    TagViewer* pbTagViewer;
    QPlainTextEdit* txContent;
    MainArea* area_;
    MainToolBar* tbToolBar;
    MainStatusBar* sbStatusBar;
    MainMenus menus_;
    WindowProgress progress_;
    WindowUser user_;
    QTimer* tmExtrasFilters;
    WindowSearch* search_;
    HtmlHelp help_;
    bool ItemClicked = false; // a row was clicked, and the mouse button is not up yet
};
