// SPDX-License-Identifier: MIT
#include "app/ContentPane.h"

#include <QFontDatabase>
#include <QPlainTextEdit>

QPlainTextEdit* MakeContentPane(QWidget* parent) {
    auto* pane = new QPlainTextEdit(parent);
    pane->setObjectName("txContent");
    pane->setReadOnly(true);
    pane->setTabChangesFocus(true);
    QFont font("Lucida Console");
    if (!QFontDatabase::hasFamily(font.family()))
        font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(9.75);
    pane->setFont(font);
    return pane;
}
