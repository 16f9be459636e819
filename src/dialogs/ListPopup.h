// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <QMenu>

// The popup menu of the lists in the filter dialogs. It signals a chosen item only after it has closed, so
// that no dialog opens from inside the menu.
class ListPopup : public QMenu {
    Q_OBJECT

  public:
    ListPopup(Language language, QWidget* parent);

  signals:
    void Add();
    void Remove();
    void Edit();
};
