// SPDX-License-Identifier: MIT
#include "list/ToolTip.h"

namespace {

constexpr qsizetype LongestLine = 80; // characters
constexpr qsizetype EnoughForALine = 40;
constexpr qsizetype LongestWord = 60;
constexpr QChar MayBreak(0x200B); // without a width

// Adds places for line ends to words that are longer than a line: behind a comma if possible, otherwise
// behind any character.
QString WithPlacesToBreak(const QString& text) {
    QString broken;
    qsizetype word = 0;
    for (const QChar character : text) {
        const bool belongsToTheLast = character.isLowSurrogate() || character.isMark();
        if (!belongsToTheLast && (word >= LongestWord || (word >= EnoughForALine && broken.endsWith(',')))) {
            broken += MayBreak;
            word = 0;
        }
        broken += character;
        word = character.isSpace() ? 0 : word + 1;
    }
    return broken;
}

} // namespace

QString ToolTipOf(const QString& text) {
    if (text.isEmpty())
        return {};
    return text.size() <= LongestLine
               ? "<qt style='white-space:pre'>" + text.toHtmlEscaped() + "</qt>"
               : "<qt style='white-space:pre-wrap'>" + WithPlacesToBreak(text).toHtmlEscaped() + "</qt>";
}
