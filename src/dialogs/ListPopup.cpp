// SPDX-License-Identifier: MIT
#include "dialogs/ListPopup.h"

#include "list/QtText.h"

#include <QAction>

ListPopup::ListPopup(Language language, QWidget* parent) : QMenu(parent) {
    setObjectName("mnuPopup");
    const auto item = [&](const char* name, TextId text, void (ListPopup::*chosen)()) {
        QAction* const action = addAction(QtText(text, language));
        action->setObjectName(name);
        connect(action, &QAction::triggered, this, chosen, Qt::QueuedConnection);
    };
    item("mnuFilterAdd", TextId::mnuFilterAdd, &ListPopup::Add);
    item("mnuFilterRemove", TextId::mnuFilterRemove, &ListPopup::Remove);
    item("mnuFilterEdit", TextId::mnuFilterEdit, &ListPopup::Edit);
}
