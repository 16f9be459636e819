// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

#include <array>

// The pictures of the window: the program's own and those of the toolbar.
enum class AppIcon { Program, Open, SaveArchive, Filter, FilterInForce, Refresh };

inline constexpr std::array<const char*, 6> AppIconPaths{
    ":/icons/qorvix.svg",          ":/icons/open.svg",    ":/icons/save-archive.svg", ":/icons/filter.svg",
    ":/icons/filter-in-force.svg", ":/icons/refresh.svg",
};

// The icon, sharp at every size from 16 pixels up. Needs a QGuiApplication.
QIcon MakeAppIcon(AppIcon icon);
