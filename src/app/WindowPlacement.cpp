// SPDX-License-Identifier: MIT
#include "app/WindowPlacement.h"

#include "list/LogbookColumns.h"
#include "list/Twips.h"
#include "settings/Registry.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QScreen>

#include <algorithm>
#include <string_view>

namespace {

struct Length {
    std::string_view Name;
    int Default; // twips
};

constexpr Length Left{"Main.Left", 100};
constexpr Length Top{"Main.Top", 100};
constexpr Length Width{"Main.Width", 14000};
constexpr Length Height{"Main.Height", 12000};

int Load(const Registry& registry, const Length& length) {
    return PixelsOf(registry.ReadLogbookSettingLong(length.Name, length.Default));
}

void Save(Registry& registry, const Length& length, int pixels) {
    const int stored = registry.ReadLogbookSettingLong(length.Name, length.Default);
    registry.WriteLogbookSetting(length.Name, TwipsToStore(pixels, stored), SettingType::Integer);
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

Length LengthOf(const LogbookColumnInfo& column) { return {column.WidthSetting, column.DefaultWidth}; }

} // namespace

void LoadPlacement(const Registry& registry, QWidget& window) {
    QPoint place(Load(registry, Left), Load(registry, Top));
    const QSize size = QSize(Load(registry, Width), Load(registry, Height)).expandedTo({1, 1});
    if (!CanBeReached(place, size))
        place = {PixelsOf(Left.Default), PixelsOf(Top.Default)};
    window.move(place);
    window.resize(size);
    if (registry.ReadLogbookSettingLong("MainIsMaximized", 0) == 1)
        window.setWindowState(Qt::WindowMaximized);
}

void LoadColumnWidths(const Registry& registry, QHeaderView& header) {
    for (int column = 0; column < LogbookColumnCount; ++column) {
        const LogbookColumnInfo& info = LogbookColumns[static_cast<std::size_t>(column)];
        header.resizeSection(column, info.WidthSetting.empty() ? PixelsOf(info.DefaultWidth)
                                                               : std::max(0, Load(registry, LengthOf(info))));
    }
}

void SavePlacement(Registry& registry, const QWidget& window) {
    if (window.isMinimized() || window.isMaximized())
        return;
    Save(registry, Left, window.x());
    Save(registry, Top, window.y());
    Save(registry, Width, window.width());
    Save(registry, Height, window.height());
}

void SaveColumnWidths(Registry& registry, const QHeaderView& header) {
    for (int column = 0; column < LogbookColumnCount; ++column) {
        const LogbookColumnInfo& info = LogbookColumns[static_cast<std::size_t>(column)];
        if (!info.WidthSetting.empty())
            Save(registry, LengthOf(info), header.sectionSize(column));
    }
}
