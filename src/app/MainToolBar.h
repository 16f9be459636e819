// SPDX-License-Identifier: MIT
#pragma once

#include "app/Commands.h"
#include "settings/Language.h"

#include <QToolBar>

#include <functional>
#include <optional>

// The tool bar of the main window. A button is known by its key, which is the same in every language.
class MainToolBar : public QToolBar {
    Q_OBJECT

  public:
    explicit MainToolBar(QWidget* parent);

    void LoadLanguage(Language language);

    // A button stands for a command of the menus and is enabled with it.
    void SetEnabled(Command command, bool enabled);

    // Whether filters other than "All entries" are in force: the filter button then looks filled, and a
    // screen reader says so.
    void ShowOtherFilters(bool areInForce);

    // The command of the button with this key; nothing for any other text.
    static std::optional<Command> CommandOf(const QString& key);

  signals:
    void ButtonClick(const QString& key);

  private:
    Language language_;
    bool otherFilters_ = false;
};
