// SPDX-License-Identifier: MIT
#include "app/MainMenus.h"

#include "list/QtText.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <optional>
#include <string_view>

namespace {

constexpr const char* PopupName = "mnuPopup";
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

MainMenus::MainMenus(QMainWindow& window, const std::function<void(Command)>& run) : window_(window) {
    QMenu* menu = nullptr;
    for (const MenuRow& row : Rows) {
        if (!row.Action) {
            if (std::string_view(row.Name) == PopupName) {
                menu = popup_ = new QMenu(&window);
                menu->setObjectName(row.Name);
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
        QObject::connect(item, &QAction::triggered, &window, [run, command = *row.Action] { run(command); });
        items_[*row.Action] = item;
    }
}

void MainMenus::LoadLanguage(Language language) {
    for (const MenuRow& row : Rows) {
        if (row.Action)
            items_.at(*row.Action)->setText(QtText(*row.Text, language));
        else if (row.Text)
            window_.findChild<QMenu*>(row.Name)->setTitle(QtText(*row.Text, language));
    }
}
