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

// The same without the marks of access keys, for places that have none.
inline QString QtPlainText(TextId id, Language language) { return QtText(id, language).remove('&'); }

// What a cell shows of a text, which may have millions of characters: to lay these out takes seconds.
inline QString ShownInCell(const QString& text) {
    constexpr qsizetype MostShown = 2000;
    return text.left(MostShown);
}
