// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <map>

class QWidget;

// Deals with the dialogs that a command opens, in the order in which they were told to come. A dialog that
// was not told, and one that does not come, is a fault.
class SessionPerson : public QObject {
  public:
    using Deed = std::function<void(QWidget&)>;

    // The next dialog of this class; the deed may leave it open for the next one.
    void Expect(const QString& dialogClass, Deed deed);

    // The next message box has this text; the button is a QMessageBox::StandardButton.
    void ExpectMessage(const QString& text, int button);

    // Chooses a path in the next file dialog; "" cancels it.
    void ExpectFileDialog(const QString& title, const QString& path);

    // What a deed has found wrong.
    void Blame(const QString& fault) { faults_ << fault; }

    // From Begin to Wait the dialogs are dealt with. Wait returns when all have come, or a generous time
    // later.
    void Begin();
    void Wait();

    // What was wrong since Begin; "" for nothing.
    QString Fault() const;

  private:
    void LookLater();
    void Look();
    void Settle();

    struct Awaited {
        QString Class;
        Deed Do;
    };
    std::deque<Awaited> awaited_;
    std::map<QWidget*, int> levels_; // of the event loop that a dialog waits in
    QStringList faults_;
    bool watching_ = false;
    int watch_ = 0;       // counts them
    bool settled_ = true; // what was queued before the last Settle is done or under way
    int settling_ = 0;    // counts them
    int looksInVain_ = 0; // at a dialog that is not the awaited one
};
