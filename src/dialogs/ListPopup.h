// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <QMenu>

// The popup menu of the lists of the filter dialogs. A chosen item is told when the menu has closed, so that
// no dialog opens from inside of it.
class ListPopup : public QMenu {
    Q_OBJECT

  public:
    ListPopup(Language language, QWidget* parent);

  signals:
    void Add();
    void Remove();
    void Edit();
};
