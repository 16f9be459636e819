// SPDX-License-Identifier: MIT
#pragma once

#include "app/Commands.h"
#include "app/FileOrders.h"
#include "app/FilterOrders.h"
#include "app/ListOrders.h"
#include "app/MainMenus.h"
#include "app/QtCatalogue.h"
#include "app/WindowDocument.h"
#include "app/WindowPlacement.h"
#include "app/WindowProgress.h"
#include "app/WindowUser.h"
#include "dialogs/HTMLHelp.h"
#include "document/NumbersOfOthers.h"
#include "eventinfo/FacilityFile.h"
#include "filter/FilterDefinition.h"
#include "settings/Registry.h"
#include "settings/Texts.h"

#include <QMainWindow>

#include <optional>
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
class WindowOverview;
class WindowSearch;

// The program's only top-level window: every order of the person enters here. It shows one logbook as a list.
class frmMain : public QMainWindow {
    Q_OBJECT

  public:
    // Places the window as the settings have it, and shows the document in it. Both must outlive the window.
    frmMain(LogbookDocument& document, Registry& registry);

    // Called once, when the window is on the screen. Runs the command line, and shows the content pane if it
    // was shown when the program ended.
    void FirstActivation(const std::vector<std::string>& arguments);

    // As LogbookDocument has them. A read that the person wants to stop closes the window.
    void RunCommandLine(const std::vector<std::string>& arguments);
    bool OpenLogbook(const std::string& name);
    void ApplyFilter() { document_.ApplyFilter(); }

    // Carries out a command. Those that need an idle logbook do nothing while one is being read.
    void Run(Command command, const OrderSubject& subject = {});

    // A click on the button of the tool bar with this key; any other text does nothing.
    void ToolBarButtonClick(const QString& key);

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
    void Refresh();
    void CloseIfWanted();
    void ShowContentPane(bool shown);
    void ChooseLanguage();
    void ShowEntryProperties();
    void ShowLookupMistake(const FacilityFileMistake& mistake);
    void ShowNotNoted(std::error_code error);
    void ShowStandingMessage();
    void ShowFiltersInForce();
    QString WhyHidden() const;
    void EditFilters();
    void ShowSelectedContent();
    void ShowNoHelp();

    LogbookDocument& document_;
    Registry& registry_;
    Language language_;
    FilterTypeLabels filterTypeLabels_;
    QtCatalogue qtCatalogue_;
    QString BaseCaption;
    FacilityFileMistake lookupMistake_; // these stand in the status bar
    std::error_code notNoted_;
    std::optional<NumbersOfOthers> numbersOfOthers_; // until the next status
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
    WindowDocument shown_;
    QTimer* tmExtrasFilters;
    WindowSearch* search_;
    ListOrders listOrders_;
    FilterOrders filterOrders_;
    WindowOverview* overview_;
    FileOrders fileOrders_;
    HtmlHelp help_;
    bool ItemClicked = false; // a row was clicked, and the mouse button is not up yet
};
