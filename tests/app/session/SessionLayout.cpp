// SPDX-License-Identifier: MIT
// What a person does with the window around the list.
#include "app/session/RandomSession.h"

void RandomSession::Resize() {
    if (Window->isMaximized() || Chance(6)) {
        const bool maximise = !Window->isMaximized();
        Say(maximise ? "maximises the window" : "makes the window normal");
        maximise ? Window->showMaximized() : Window->showNormal();
        return;
    }
    const QSize size(300 + Below(460), 120 + Below(460));
    Say(QString("makes the window %1 x %2").arg(size.width()).arg(size.height()));
    Window->resize(size);
}

void RandomSession::ToggleContent() {
    Say("shows or hides the content pane");
    Item("mnuVContent")->trigger();
    Model.ContentShown = !Model.ContentShown;
}

void RandomSession::ToggleBars() {
    const bool tools = Chance(2);
    Say(tools ? "shows or hides the tool bar" : "shows or hides the status bar");
    Item(tools ? "mnuViewToolbar" : "mnuViewStatusBar")->trigger();
    bool& shown = tools ? toolBarShown_ : statusBarShown_;
    shown = !shown;
}

void RandomSession::WidenColumn() {
    const int column = Below(7);
    columnWidths_[column] = 40 + Below(200);
    Say(QString("makes column %1 %2 wide").arg(column).arg(columnWidths_[column]));
    List()->setColumnWidth(column, columnWidths_[column]);
}
