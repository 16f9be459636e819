// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

#include <array>

// The sides, in pixels, of the pictures that stand for a drawing where Qt cannot draw it.
inline constexpr std::array PictureSizes{16, 20, 24, 32, 40, 48, 64, 128, 256};

// Adds a drawing of the program's own resources, ":/row/info.svg", to an icon. Where the build has no Qt that
// draws such files it carries pictures in their place, ":/row/info.svg.16.png", of some of the PictureSizes
// (cmake/Pictures.cmake).
void AddPicture(QIcon& icon, const QString& drawing, QIcon::Mode mode = QIcon::Normal);
