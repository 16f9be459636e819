// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Texts.h"

#include <QDir>
#include <QString>

#include <string>
#include <string_view>

// The core's text is UTF-8.
inline QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A path of Qt's, which has "/" on all systems, as the core has it: with the system's own separators.
inline std::string ToNativePath(const QString& path) { return QDir::toNativeSeparators(path).toStdString(); }

inline QString QtText(TextId id, Language language) { return ToQString(Text(id, language)); }

// The same without the marks of access keys, for places without access keys.
inline QString QtPlainText(TextId id, Language language) { return QtText(id, language).remove('&'); }

// The part of a text that a cell shows: laying out a text of millions of characters takes seconds.
inline QString ShownInCell(const QString& text) {
    constexpr qsizetype MostShown = 2000;
    return text.left(MostShown);
}
