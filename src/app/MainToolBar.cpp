// SPDX-License-Identifier: MIT
#include "app/MainToolBar.h"

#include "app/AppIcons.h"
#include "list/QtText.h"

#include <QAction>

#include <algorithm>
#include <array>

namespace {

struct ButtonRow {
    const char* Key;
    TextId Tip;
    Command Action;
    AppIcon Icon;
};

constexpr const char* FilterKey = "Filter";

constexpr std::array<ButtonRow, 4> Buttons{{
    {"Öffnen", TextId::mnuFileOpen, Command::Open, AppIcon::Open},
    {"ZipLogbook", TextId::mnuFileZipLogbook, Command::ZipLogbook, AppIcon::SaveArchive},
    {FilterKey, TextId::mnuExtrasFilters, Command::Filters, AppIcon::Filter},
    {"Refresh", TextId::ToolBarRefresh, Command::Refresh, AppIcon::Refresh},
}};

} // namespace

MainToolBar::MainToolBar(QWidget* parent) : QToolBar(parent) {
    setObjectName("tbToolBar");
    setMovable(false);
    setIconSize({24, 24});
    for (const ButtonRow& row : Buttons) {
        QAction* const button = addAction(MakeAppIcon(row.Icon), QString());
        button->setData(QString(row.Key));
        button->setObjectName(row.Key);
    }
    connect(this, &QToolBar::actionTriggered, this,
            [this](QAction* button) { emit ButtonClick(button->data().toString()); });
}

void MainToolBar::LoadLanguage(Language language) {
    // Not as the title: a screen reader would keep the first one.
    setAccessibleName(QtPlainText(TextId::mnuViewToolbar, language));
    for (const ButtonRow& row : Buttons) {
        QAction* const button = findChild<QAction*>(row.Key);
        button->setText(QtPlainText(row.Tip, language));
        button->setToolTip(button->text());
        widgetForAction(button)->setAccessibleName(button->text());
    }
    language_ = language;
    ShowOtherFilters(otherFilters_);
}

void MainToolBar::ShowOtherFilters(bool areInForce) {
    QAction* const button = findChild<QAction*>(FilterKey);
    if (areInForce != otherFilters_)
        button->setIcon(MakeAppIcon(areInForce ? AppIcon::FilterInForce : AppIcon::Filter));
    otherFilters_ = areInForce;
    widgetForAction(button)->setAccessibleDescription(areInForce ? QtText(TextId::OtherFilters, language_)
                                                                 : QString());
}

void MainToolBar::SetEnabled(Command command, bool enabled) {
    for (const ButtonRow& row : Buttons)
        if (row.Action == command)
            findChild<QAction*>(row.Key)->setEnabled(enabled);
}

std::optional<Command> MainToolBar::CommandOf(const QString& key) {
    const auto* const row = std::find_if(Buttons.begin(), Buttons.end(),
                                         [&](const ButtonRow& button) { return key == button.Key; });
    return row == Buttons.end() ? std::nullopt : std::optional(row->Action);
}
