// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class QWidget;

// Keeps the help at hand while a dialog is open. A dialog that opens above the window blocks that window and
// its other dialogs, not all of the program, so that the help can be read beside it; and F1 in it asks for
// the help as the menu does.
class HelpBesideDialogs : public QObject {
    Q_OBJECT

  public:
    explicit HelpBesideDialogs(QWidget* window);

  signals:
    void HelpWanted();

  protected:
    // Watches the whole application: dialogs open from many places, also within Qt.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool IsAboveWindow(const QObject& widget) const;

    QWidget* window_;
};
