// SPDX-License-Identifier: MIT
#include "app/WindowPlacement.h"

#include "dialogs/ScreenRoom.h"
#include "list/Twips.h"
#include "rows/LogbookColumns.h"
#include "settings/Registry.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QLayout>
#include <QScreen>

#include <algorithm>
#include <string_view>

namespace {

constexpr std::array<std::string_view, 4> LengthNames{".Left", ".Top", ".Width", ".Height"};

std::array<int, 4> LengthsOf(const QWidget& window) {
    return {window.x(), window.y(), window.width(), window.height()};
}

// As it will be when the window is shown: one that grows only then is moved by the desktop.
QSize LeastSize(const QWidget& window) {
    window.ensurePolished();
    for (const QWidget* const child : window.findChildren<QWidget*>())
        child->ensurePolished();
    window.layout()->activate();
    return window.minimumSizeHint();
}

// The part of the window that a person drags it by must be on a screen.
bool CanBeReached(QPoint place, QSize size) {
    const QRect grip = QRect(place, QSize(size.width(), 1)).adjusted(0, 0, 0, PixelsOf(450));
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        const QRect seen = grip & screen->availableGeometry();
        return seen.width() >= PixelsOf(900) && seen.height() >= PixelsOf(150);
    });
}

} // namespace

std::string WindowPlacement::SettingOf(std::size_t length) const {
    return name_ + std::string(LengthNames[length]);
}

void WindowPlacement::Load(const Registry& registry, QWidget& window) {
    for (std::size_t i = 0; i < loaded_.size(); ++i)
        loaded_[i] = registry.ReadLogbookSettingLong(SettingOf(i), defaults_[i]);
    QPoint place(PixelsOf(loaded_[0]), PixelsOf(loaded_[1]));
    const QSize size =
        QSize(PixelsOf(loaded_[2]), PixelsOf(loaded_[3])).expandedTo(LeastSize(window)).expandedTo({1, 1});
    if (!CanBeReached(place, size))
        place = QPoint(PixelsOf(defaults_[0]), PixelsOf(defaults_[1]));
    const QRect shown = PlaceOnScreens(QRect(place, size));
    window.move(shown.topLeft());
    window.resize(shown.size());
    shown_ = LengthsOf(window);
    if (registry.ReadLogbookSettingLong(name_ + "IsMaximized", 0) == 1)
        window.setWindowState(Qt::WindowMaximized);
}

void WindowPlacement::Save(Registry& registry, const QWidget& window) const {
    if (window.isMinimized() || window.isMaximized())
        return;
    const std::array<int, 4> now = LengthsOf(window);
    for (std::size_t i = 0; i < now.size(); ++i)
        registry.WriteLogbookSetting(SettingOf(i),
                                     now[i] == shown_[i] ? loaded_[i] : TwipsToStore(now[i], loaded_[i]),
                                     SettingType::Integer);
}

void LoadColumnWidths(const Registry& registry, QHeaderView& header) {
    for (int column = 0; column < LogbookColumnCount; ++column) {
        const LogbookColumnInfo& info = LogbookColumns[static_cast<std::size_t>(column)];
        header.resizeSection(column, info.WidthSetting.empty() ? PixelsOf(info.DefaultWidth)
                                                               : ColumnWidth(registry.ReadLogbookSettingLong(
                                                                     info.WidthSetting, info.DefaultWidth)));
    }
}

void SaveColumnWidths(Registry& registry, const QHeaderView& header) {
    for (int column = 0; column < LogbookColumnCount; ++column) {
        const LogbookColumnInfo& info = LogbookColumns[static_cast<std::size_t>(column)];
        if (info.WidthSetting.empty())
            continue;
        const int stored = registry.ReadLogbookSettingLong(info.WidthSetting, info.DefaultWidth);
        registry.WriteLogbookSetting(info.WidthSetting, ColumnTwips(header.sectionSize(column), stored),
                                     SettingType::Integer);
    }
}
