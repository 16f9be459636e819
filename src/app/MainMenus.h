// SPDX-License-Identifier: MIT
#pragma once

#include "app/Commands.h"
#include "settings/Texts.h"

#include <functional>
#include <map>
#include <optional>
#include <vector>

class QAction;
class QMainWindow;
class QMenu;

// The menu bar of the main window and the popup menu of its list, with the keys of their items. Every menu,
// item and separator has its name as object name.
class MainMenus {
  public:
    // `run` is called with the order of each item that is chosen.
    using RunOrder = std::function<void(Command, const OrderSubject&)>;
    MainMenus(QMainWindow& window, const RunOrder& run);

    void LoadLanguage(Language language);

    // Enables an item that has something to undo or redo, and names that behind its text.
    void Offer(Command command, std::optional<TextId> act, Language language);

    QAction& Item(Command command) const { return *items_.at(command); }
    QMenu& Popup() const { return *popup_; }

  private:
    void AddSortItems(QMenu& menu, const RunOrder& run);

    std::map<Command, QAction*> items_;
    std::vector<QAction*> sortItems_; // two a column: ascending, descending
    QMenu* popup_ = nullptr;
    QMainWindow& window_;
};
