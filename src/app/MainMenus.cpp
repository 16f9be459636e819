// SPDX-License-Identifier: MIT
#include "app/MainMenus.h"

#include "list/QtText.h"
#include "rows/LogbookColumns.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <optional>
#include <string_view>

namespace {

constexpr const char* PopupName = "mnuPopup";
constexpr const char* SortMenuName = "mnuAnalysisSort"; // a menu in the menu above it
constexpr QKeyCombination NoKey = Qt::Key_unknown;
constexpr bool Disabled = false;

// A menu begins with a row of its own, with a text and without a command; a row without both is a separator.
// The popup menu has no text of its own: it is no part of the menu bar.
struct MenuRow {
    const char* Name;
    std::optional<TextId> Text;
    std::optional<Command> Action;
    QKeyCombination Key = NoKey;
    enum { Plain, CheckedAtStart, UncheckedAtStart } Check = Plain;
    bool Enabled = true;
};

const MenuRow Rows[] = {
    {"mnuFile", TextId::mnuFile, {}},
    {"mnuFileOpen", TextId::mnuFileOpen, Command::Open, Qt::CTRL | Qt::Key_O},
    {"mnuFileZipLogbook", TextId::mnuFileZipLogbook, Command::ZipLogbook, Qt::CTRL | Qt::Key_S},
    {"mnuFileBar1", {}, {}},
    {"mnuFileExit", TextId::mnuFileExit, Command::Exit, Qt::CTRL | Qt::Key_Q},
    {"mnuView", TextId::mnuView, {}},
    {"mnuViewToolbar", TextId::mnuViewToolbar, Command::ViewToolbar, NoKey, MenuRow::CheckedAtStart},
    {"mnuViewStatusBar", TextId::mnuViewStatusBar, Command::ViewStatusBar, NoKey, MenuRow::CheckedAtStart},
    {"mnuVContent", TextId::mnuVContent, Command::ViewContent, NoKey, MenuRow::UncheckedAtStart},
    {"mnuViewBar0", {}, {}},
    {"mnuViewRefresh", TextId::mnuViewRefresh, Command::Refresh, Qt::Key_F5},
    {"mnuExtras", TextId::mnuExtras, {}},
    {"mnuExtrasSearch", TextId::mnuExtrasSearch, Command::Find, Qt::CTRL | Qt::Key_F},
    {"mnuExtrasFindNext", TextId::mnuExtrasFindNext, Command::FindNext, Qt::Key_F3, MenuRow::Plain, Disabled},
    {"mnuExtrasFindPrev", TextId::mnuExtrasFindPrev, Command::FindPrevious, Qt::SHIFT | Qt::Key_F3,
     MenuRow::Plain, Disabled},
    {"mnnuExtrasSep1", {}, {}},
    {"mnuExtrasFilters", TextId::mnuExtrasFilters, Command::Filters},
    {"mnnuExtrasSep2", {}, {}},
    {"mnuExtrasDialogLanguage", TextId::mnuExtrasDialogLanguage, Command::DialogLanguage},
    {"mnuAnalysis", TextId::mnuAnalysis, {}},
    {"mnuAnalysisOverview", TextId::mnuAnalysisOverview, Command::Overview, Qt::Key_F9},
    {"mnuAnalysisGoToTime", TextId::mnuAnalysisGoToTime, Command::GoToTime, Qt::CTRL | Qt::Key_G},
    {"mnuAnalysisNextError", TextId::mnuAnalysisNextError, Command::NextError, Qt::Key_F4},
    {"mnuAnalysisPrevError", TextId::mnuAnalysisPrevError, Command::PreviousError, Qt::SHIFT | Qt::Key_F4},
    {"mnuAnalysisNextHighlighted", TextId::mnuAnalysisNextHighlighted, Command::NextHighlighted, Qt::Key_F7},
    {"mnuAnalysisPrevHighlighted", TextId::mnuAnalysisPrevHighlighted, Command::PreviousHighlighted,
     Qt::SHIFT | Qt::Key_F7},
    {"mnuAnalysisNextCommented", TextId::mnuAnalysisNextCommented, Command::NextCommented, Qt::Key_F8},
    {"mnuAnalysisPrevCommented", TextId::mnuAnalysisPrevCommented, Command::PreviousCommented,
     Qt::SHIFT | Qt::Key_F8},
    {"mnuAnalysisSep1", {}, {}},
    {"mnuAnalysisKeepBetween", TextId::mnuAnalysisKeepBetween, Command::KeepBetween},
    {"mnuAnalysisUndo", TextId::mnuAnalysisUndo, Command::Undo, Qt::CTRL | Qt::Key_Z, MenuRow::Plain,
     Disabled},
    {"mnuAnalysisRedo", TextId::mnuAnalysisRedo, Command::Redo, Qt::CTRL | Qt::Key_Y, MenuRow::Plain,
     Disabled},
    {"mnuAnalysisSep2", {}, {}},
    {SortMenuName, TextId::mnuAnalysisSort, {}},
    {"mnuAnalysisFitColumns", TextId::mnuAnalysisFitColumns, Command::FitColumnWidths},
    {"mnuAnalysisSep3", {}, {}},
    {"mnuAnalysisExport", TextId::mnuAnalysisExport, Command::ExportList, NoKey, MenuRow::Plain, Disabled},
    {"mnuAnalysisErrorTexts", TextId::mnuAnalysisErrorTexts, Command::TakeOverErrorTexts},
    {"mnuHelp", TextId::mnuHelp, {}},
    {"mnuHelpContents", TextId::mnuHelpContents, Command::HelpContents, Qt::Key_F1},
    {"mnuHelpSearch", TextId::mnuHelpSearch, Command::HelpSearch},
    {"mnuHelpBar0", {}, {}},
    {"mnuHelpAbout", TextId::mnuHelpAbout, Command::About},
    {PopupName, {}, {}},
    {"mnuPopupToggle", TextId::mnuPopupToggle, Command::ToggleHighlighting},
    {"mnuPopupRemove", TextId::mnuPopupRemove, Command::RemoveFromList},
    {"mnuPopupProperties", TextId::mnuPopupProperties, Command::Properties},
    {"mnuPopupSep", {}, {}},
    {"mnuPopupEditFilter", TextId::mnuPopupEditFilter, Command::EditFilters},
};

} // namespace

MainMenus::MainMenus(QMainWindow& window, const RunOrder& run) : window_(window) {
    QMenu* menu = nullptr;
    for (const MenuRow& row : Rows) {
        if (!row.Action) {
            if (std::string_view(row.Name) == PopupName) {
                menu = popup_ = new QMenu(&window);
                menu->setObjectName(row.Name);
            } else if (std::string_view(row.Name) == SortMenuName) {
                QMenu* const inner = menu->addMenu(QString());
                inner->setObjectName(row.Name);
                AddSortItems(*inner, run);
            } else if (row.Text) {
                menu = window.menuBar()->addMenu(QString());
                menu->setObjectName(row.Name);
            } else {
                menu->addSeparator()->setObjectName(row.Name);
            }
            continue;
        }
        QAction* const item = menu->addAction(QString());
        item->setObjectName(row.Name);
        if (row.Key != NoKey)
            item->setShortcut(QKeySequence(row.Key));
        item->setCheckable(row.Check != MenuRow::Plain);
        item->setChecked(row.Check == MenuRow::CheckedAtStart);
        item->setEnabled(row.Enabled);
        QObject::connect(item, &QAction::triggered, &window,
                         [run, command = *row.Action] { run(command, {}); });
        items_[*row.Action] = item;
    }
}

void MainMenus::AddSortItems(QMenu& menu, const RunOrder& run) {
    for (int column = 0; column < LogbookColumnCount; ++column)
        for (const SortDirection direction : {SortDirection::Ascending, SortDirection::Descending}) {
            QAction* const item = menu.addAction(QString());
            item->setObjectName(menu.objectName() + QString::number(sortItems_.size()));
            QObject::connect(item, &QAction::triggered, &window_, [run, column, direction] {
                run(Command::SortInOrder, ColumnOrder{column, direction});
            });
            sortItems_.push_back(item);
        }
}

void MainMenus::LoadLanguage(Language language) {
    for (std::size_t i = 0; i < sortItems_.size(); ++i)
        sortItems_[i]->setText(QtText(LogbookColumns[i / 2].Header, language) +
                               QtText(i % 2 == 0 ? TextId::SortAscending : TextId::SortDescending, language));
    for (const MenuRow& row : Rows) {
        if (row.Action)
            items_.at(*row.Action)->setText(QtText(*row.Text, language));
        else if (row.Text)
            window_.findChild<QMenu*>(row.Name)->setTitle(QtText(*row.Text, language));
    }
}

void MainMenus::Offer(Command command, std::optional<TextId> act, Language language) {
    QAction& item = Item(command);
    const TextId text = command == Command::Undo ? TextId::mnuAnalysisUndo : TextId::mnuAnalysisRedo;
    item.setEnabled(act.has_value());
    item.setText(QtText(text, language) + (act ? ": " + QtPlainText(*act, language) : QString()));
}
