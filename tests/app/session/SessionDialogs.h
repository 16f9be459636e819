// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QTreeWidget>

// What a person does in the dialogs.
inline void Click(const QWidget& dialog, const char* button) {
    dialog.findChild<QAbstractButton*>(button)->click();
}

inline void SelectAlone(QTreeWidget& list, int row) {
    list.setCurrentItem(list.topLevelItem(row), 0,
                        QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}
