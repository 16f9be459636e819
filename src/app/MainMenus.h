// SPDX-License-Identifier: MIT
#pragma once

#include "app/Commands.h"
#include "settings/Language.h"

#include <functional>
#include <map>

class QAction;
class QMainWindow;
class QMenu;

// The menu bar of the main window and the popup menu of its list, with the keys of their items. Every menu,
// item and separator has its name as object name.
class MainMenus {
  public:
    // `run` is called with the command of each item that is chosen.
    MainMenus(QMainWindow& window, const std::function<void(Command)>& run);

    void LoadLanguage(Language language);

    QAction& Item(Command command) const { return *items_.at(command); }
    QMenu& Popup() const { return *popup_; }

  private:
    std::map<Command, QAction*> items_;
    QMenu* popup_ = nullptr;
    QMainWindow& window_;
};
