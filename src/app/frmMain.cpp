// SPDX-License-Identifier: MIT
#include "app/frmMain.h"

#include "app/ContentPane.h"
#include "app/EntryProperties.h"
#include "app/HelpBesideDialogs.h"
#include "app/LibraryVersions.h"
#include "app/MainArea.h"
#include "app/MainStatusBar.h"
#include "app/MainToolBar.h"
#include "app/WaitPointer.h"
#include "app/WindowOverview.h"
#include "app/WindowSearch.h"
#include "base/ProgramFolder.h"
#include "dialogs/frmAbout.h"
#include "dialogs/frmLanguageDialog.h"
#include "dialogs/frmLogbookSettings.h"
#include "filter/FilterStorage.h"
#include "filter/FiltersInForce.h"
#include "helpbook/HelpFile.h"
#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "list/QtText.h"
#include "list/TagViewer.h"
#include "rows/ContentText.h"
#include "settings/ReasonText.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTimer>

#include <optional>
#include <utility>

frmMain::frmMain(LogbookDocument& document, Registry& registry)
    : document_(document),
      registry_(registry),
      BaseCaption("Qorvix"),
      placement_("Main", MainWindowPlace),
      ViewContents(registry.ReadLogbookSettingLong("MainViewContents", 0) == 1),
      model_(new LogbookModel(document.Entries(), document.Rows(), this)),
      lvLogbook(new LogbookView(this)),
      pbTagViewer(new TagViewer(*lvLogbook, document.Entries(), this)),
      txContent(MakeContentPane(this)),
      area_(new MainArea(lvLogbook, pbTagViewer, txContent, this)),
      tbToolBar(new MainToolBar(this)),
      sbStatusBar(new MainStatusBar(this)),
      menus_(*this, [this](Command command, const OrderSubject& subject) { Run(command, subject); }),
      progress_(this, sbStatusBar->Progress(), BaseCaption),
      user_(this, sbStatusBar->StatusText(), BaseCaption),
      shown_(document,
             {.Model = *model_,
              .List = *lvLogbook,
              .Content = *txContent,
              .StatusBar = *sbStatusBar,
              .Progress = progress_,
              .User = user_},
             {.ReadingBegins = [this] { overview_->Forget(); },
              .LogbookIsOpen =
                  [this](std::string_view name) {
                      setWindowTitle(ToQString(name) + " - " + BaseCaption);
                      filterOrders_.Clear();
                      menus_.Item(Command::ExportList).setEnabled(true);
                  },
              .CommentsAreSafe = [this](std::error_code error) { ShowNotNoted(error); },
              .SelectedContentChanged = [this] { ShowSelectedContent(); },
              .FiltersInForceChanged = [this] { ShowFiltersInForce(); },
              .NumbersOfOthersHide =
                  [this](const NumbersOfOthers& numbers) {
                      numbersOfOthers_ = numbers;
                      ShowStandingMessage();
                  }}),
      tmExtrasFilters(new QTimer(this)),
      search_(new WindowSearch(*lvLogbook, document.Entries(), user_, *this)),
      listOrders_(*lvLogbook, document.Entries(), *search_),
      filterOrders_(*lvLogbook, registry, menus_, user_,
                    {.FiltersChanged = [this] { ApplyFilter(); },
                     .RowsRemoved =
                         [this] {
                             ShowSelectedContent();
                             if (sbStatusBar->HasCounts())
                                 shown_.ShowCounts();
                         },
                     .StoredFiltersChanged =
                         [this](const auto& before, const auto& after) {
                             document_.FiltersAreChanged(before, after);
                         }}),
      overview_(nullptr),
      fileOrders_({.Document = document,
                   .Settings = registry,
                   .User = user_,
                   .Progress = progress_,
                   .Window = *this}),
      help_(this, HelpReader(ProgramFolder())) {
    setObjectName("frmMain");
    setWindowTitle(BaseCaption);
    setContextMenuPolicy(Qt::PreventContextMenu);
    addToolBar(Qt::TopToolBarArea, tbToolBar);
    connect(tbToolBar, &MainToolBar::ButtonClick, this, &frmMain::ToolBarButtonClick);
    for (const Command command : {Command::Open, Command::ZipLogbook, Command::Filters, Command::Refresh})
        tbToolBar->SetEnabled(command, menus_.Item(command).isEnabled());
    setCentralWidget(area_);
    connect(area_, &MainArea::LayoutChanged, sbStatusBar, &MainStatusBar::HideProgressBar);
    setStatusBar(sbStatusBar);
    sbStatusBar->ExplainCounts([this] { return WhyHidden(); });
    user_.SetStatusFollows([this] {
        if (std::exchange(numbersOfOthers_, std::nullopt))
            ShowStandingMessage();
    });
    MakeList();
    connect(new HelpBesideDialogs(this), &HelpBesideDialogs::HelpWanted, this,
            [this] { Run(Command::HelpContents); });
    // The popup menu closes before the dialog opens.
    tmExtrasFilters->setObjectName("tmExtrasFilters");
    tmExtrasFilters->setSingleShot(true);
    tmExtrasFilters->setInterval(200);
    connect(tmExtrasFilters, &QTimer::timeout, this, [this] {
        // As from the menu, which cannot be reached while another dialog is open or a logbook is read.
        if (document_.Book().Busy || QApplication::activeModalWidget() != nullptr)
            tmExtrasFilters->start();
        else
            Run(Command::Filters);
    });
    LoadColumnWidths(registry_, *lvLogbook->horizontalHeader());
    LoadLanguage();
    placement_.Load(registry_, *this);
    ShowFiltersInForce();
    ShowStandingMessage();
    lvLogbook->setFocus();
}

void frmMain::MakeList() {
    lvLogbook->SetLogbook(model_);
    overview_ = new WindowOverview(
        {.List = *lvLogbook,
         .Document = document_,
         .Settings = registry_,
         .Search = *search_,
         .Filters = filterOrders_},
        [this](Command command, const OrderSubject& subject) { Run(command, subject); }, *this);
    connect(lvLogbook->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int column) { Run(Command::SortByColumn, column); });
    connect(lvLogbook, &LogbookView::PopupWanted, this,
            [this](const QPoint& position) { menus_.Popup().popup(position); });
    connect(lvLogbook, &LogbookView::RemoveFromListWanted, this, [this] { Run(Command::RemoveFromList); });
    connect(lvLogbook, &LogbookView::ToggleHighlightingWanted, this,
            [this] { Run(Command::ToggleHighlighting); });
    connect(lvLogbook, &LogbookView::PropertiesWanted, this, [this] { Run(Command::Properties); });
    connect(lvLogbook, &LogbookView::CopyWanted, this, [this] { Run(Command::CopyRows); });
    // Not before the program that the file comes from has got its answer.
    connect(
        lvLogbook, &LogbookView::FileDropped, this,
        [this](const QString& path) { Run(Command::Open, path.toStdString()); }, Qt::QueuedConnection);
    connect(lvLogbook, &LogbookView::RowClicked, this, [this] {
        ItemClicked = true;
        pbTagViewer->RefreshTagViewerDelayed();
    });
    connect(lvLogbook, &LogbookView::MouseUp, this, [this] {
        if (std::exchange(ItemClicked, false))
            ShowSelectedContent();
    });
    connect(lvLogbook, &LogbookView::KeyUp, this, [this] {
        pbTagViewer->RefreshTagViewerDelayed();
        ShowSelectedContent();
    });
    connect(search_, &WindowSearch::RowFound, this, [this](int row) {
        RefreshContentText(row);
        pbTagViewer->RefreshTagViewerDelayed();
    });
    connect(lvLogbook->selectionModel(), &QItemSelectionModel::selectionChanged, pbTagViewer,
            &TagViewer::RefreshTagViewerDelayed);
    // Rows that are read, filtered, sorted, taken out or highlighted.
    connect(model_, &LogbookModel::modelReset, pbTagViewer, &TagViewer::RefreshTagViewerDelayed);
    connect(model_, &LogbookModel::layoutChanged, pbTagViewer, &TagViewer::RefreshTagViewerDelayed);
    connect(model_, &LogbookModel::dataChanged, pbTagViewer, &TagViewer::RefreshTagViewerDelayed);
}

void frmMain::LoadLanguage() {
    language_ = ReadLanguage(registry_);
    qtCatalogue_.SetLanguage(language_);
    user_.SetLanguage(language_);
    shown_.SetLanguage(language_);
    filterTypeLabels_.SetLanguage(language_);
    search_->SetLanguage(language_);
    listOrders_.SetLanguage(language_);
    help_.CloseAll();
    menus_.LoadLanguage(language_);
    filterOrders_.SetLanguage(language_);
    overview_->SetLanguage(language_);
    fileOrders_.SetLanguage(language_);
    tbToolBar->LoadLanguage(language_);
    sbStatusBar->LoadLanguage(language_);
    model_->SetLanguage(language_);
    lvLogbook->setAccessibleName(QtText(TextId::lvLogbook, language_));
    pbTagViewer->setAccessibleName(QtText(TextId::pbTagViewer, language_));
    txContent->setAccessibleName(QtText(TextId::txContent, language_));
}

void frmMain::Run(Command command, const OrderSubject& subject) {
    if (document_.Book().Busy && NeedsIdleLogbook(command))
        return;
    switch (command) {
    case Command::Open:
        OpenLogbook(std::holds_alternative<std::string>(subject) ? std::get<std::string>(subject) : "");
        break;
    case Command::ZipLogbook:
        document_.ZipLogbook();
        break;
    case Command::Exit:
        close();
        break;
    case Command::ViewToolbar:
        tbToolBar->setVisible(menus_.Item(command).isChecked());
        break;
    case Command::ViewStatusBar:
        sbStatusBar->setVisible(menus_.Item(command).isChecked());
        break;
    case Command::ViewContent:
        ShowContentPane(menus_.Item(command).isChecked());
        break;
    case Command::Refresh:
        Refresh();
        break;
    case Command::Filters:
        EditFilters();
        break;
    case Command::HelpContents:
        if (!help_.DisplayToc(HelpFile(ProgramFolder(), language_), language_))
            ShowNoHelp();
        break;
    case Command::HelpSearch:
        if (!help_.DisplaySearch(HelpFile(ProgramFolder(), language_), language_))
            ShowNoHelp();
        break;
    case Command::About:
        frmAbout(language_, QApplication::applicationVersion().toStdString(), LibraryVersions(), this).exec();
        break;
    case Command::EditFilters:
        tmExtrasFilters->start();
        break;
    case Command::DialogLanguage:
        ChooseLanguage();
        break;
    case Command::Properties:
        ShowEntryProperties();
        break;
    case Command::ExportList:
    case Command::TakeOverErrorTexts:
        fileOrders_.Run(command);
        if (command == Command::TakeOverErrorTexts)
            overview_->Forget();
        CloseIfWanted();
        break;
    default:
        if (!filterOrders_.Run(command) && !overview_->Run(command, subject))
            listOrders_.Run(command, subject);
        for (const Command again : {Command::FindNext, Command::FindPrevious})
            menus_.Item(again).setEnabled(search_->HasText());
        break;
    }
}

void frmMain::ShowNoHelp() {
    user_.ShowMessage(Text(TextId::NoHelpFile, language_), UserInterface::MessageIcon::Exclamation);
}

void frmMain::RunCommandLine(const std::vector<std::string>& arguments) {
    document_.RunCommandLine(arguments);
    CloseIfWanted();
}

bool frmMain::OpenLogbook(const std::string& name) {
    const bool opened = document_.OpenLogbook(name);
    CloseIfWanted();
    return opened;
}

void frmMain::Refresh() {
    tbToolBar->repaint();
    document_.Refresh();
    CloseIfWanted();
}

// The window was closed while it was reading or writing.
void frmMain::CloseIfWanted() {
    if (progress_.StopWanted() && !document_.Book().Busy)
        close();
}

void frmMain::ToolBarButtonClick(const QString& key) {
    if (const std::optional<Command> command = MainToolBar::CommandOf(key))
        Run(*command);
}

void frmMain::ShowContentPane(bool shown) {
    txContent->setVisible(shown);
    RecalculateLayout();
}

// The pane is filled even while it is hidden.
void frmMain::RefreshContentText(int row) {
    const EntryNumber number = model_->Rows()[static_cast<std::size_t>(row)].Entry;
    txContent->setPlainText(
        ToQString(ContentText(document_.Entries().Data(number), document_.Entries().Comment(number))));
}

void frmMain::ShowSelectedContent() {
    if (const std::optional<int> row = lvLogbook->SelectedRow())
        RefreshContentText(*row);
}

void frmMain::RecalculateLayout() { area_->RecalculateLayout(); }

void frmMain::ChooseLanguage() {
    frmLanguageDialog dialog(language_, this);
    dialog.exec();
    const std::optional<Language> choice = dialog.Choice();
    if (!choice || *choice == language_)
        return;
    WriteLanguage(registry_, *choice);
    LoadLanguage();
    ShowStandingMessage();
    if (sbStatusBar->HasCounts())
        shown_.ShowCounts();
}

void frmMain::FirstActivation(const std::vector<std::string>& arguments) {
    RunCommandLine(arguments);
    if (ViewContents && !progress_.StopWanted())
        menus_.Item(Command::ViewContent).trigger();
    Activated = true;
}

void frmMain::ShowEntryProperties() {
    ShowEntryDialogs(
        lvLogbook->SelectedRanges(), document_, *model_, language_, this,
        {.CommentChanged = [this](int row) { RefreshContentText(row); },
         .LookedUp = [this](const FacilityFileMistake& mistake) { ShowLookupMistake(mistake); }});
}

// A mistake in the language files is told until a lookup finds none.
void frmMain::ShowLookupMistake(const FacilityFileMistake& mistake) {
    if (mistake == lookupMistake_)
        return;
    lookupMistake_ = mistake;
    ShowStandingMessage();
}

void frmMain::ShowNotNoted(std::error_code error) {
    if (error == notNoted_)
        return;
    notNoted_ = error;
    ShowStandingMessage();
}

// What stands in the status bar while nothing is done. A warning of comments at risk comes first, then what
// is told only once.
void frmMain::ShowStandingMessage() {
    const std::string mistake = FacilityFileMessage(lookupMistake_, language_);
    std::string message(Text(TextId::StatusReady, language_));
    if (notNoted_)
        message = std::string(Text(TextId::CommentNotNoted, language_)) + ReasonText(notNoted_, language_);
    else if (numbersOfOthers_)
        message = NumbersOfOthersText(*numbersOfOthers_, language_);
    else if (!mistake.empty())
        message = mistake;
    sbStatusBar->StatusText()->setText(ToQString(message));
}

void frmMain::ShowFiltersInForce() { tbToolBar->ShowOtherFilters(!IsAllEntries(document_.FiltersInForce())); }

QString frmMain::WhyHidden() const {
    const std::optional<HiddenEntries> hidden = document_.Hidden();
    return hidden ? ToQString(HiddenText(*hidden, language_)) : QString();
}

void frmMain::EditFilters() {
    std::vector<FilterDefinition> edited = LoadFilterList(registry_).Filters;
    const auto apply = [&] {
        std::vector<FilterDefinition> stored = LoadFilterList(registry_).Filters;
        document_.FiltersAreChanged(edited, stored);
        edited = std::move(stored);
        ApplyFilter();
    };
    frmLogbookSettings dialog({registry_, document_.FileCodePage(), language_, filterTypeLabels_,
                               NamesInLogbook(document_.Entries().Kinds())},
                              apply, this);
    dialog.exec();
    if (dialog.ResultText() == "OK")
        apply();
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (document_.Book().Busy)
        progress_.RequestStop();
    if (document_.Book().Busy || !document_.Close()) {
        event->ignore();
        return;
    }
    Unload();
    QMainWindow::closeEvent(event);
}

void frmMain::Unload() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (auto window = windows.rbegin(); window != windows.rend(); ++window)
        if (*window != this && (*window)->isVisible())
            (*window)->close();
    const Registry::Transaction transaction(registry_);
    registry_.WriteLogbookSetting("MainIsMaximized", isMaximized() ? 1 : 0, SettingType::Integer);
    // Before the first activation has come to its end, the pane is as it was left the last time.
    const bool viewed = menus_.Item(Command::ViewContent).isChecked() || (ViewContents && !Activated);
    registry_.WriteLogbookSetting("MainViewContents", viewed ? 1 : 0, SettingType::Integer);
    placement_.Save(registry_, *this);
    SaveColumnWidths(registry_, *lvLogbook->horizontalHeader());
    document_.StoreFolders();
}
