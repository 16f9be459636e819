// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Texts.h"

#include <QString>

#include <string_view>

// The core's text is UTF-8.
inline QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline QString QtText(TextId id, Language language) { return ToQString(Text(id, language)); }

// The same without the marks of access keys, for places without access keys.
inline QString QtPlainText(TextId id, Language language) { return QtText(id, language).remove('&'); }

// The part of a text that a cell shows: laying out a text of millions of characters takes seconds.
inline QString ShownInCell(const QString& text) {
    constexpr qsizetype MostShown = 2000;
    return text.left(MostShown);
}
