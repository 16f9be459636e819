// SPDX-License-Identifier: MIT
#include "app/session/SessionPerson.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>
#include <QTimer>

#include <chrono>

namespace {
constexpr std::chrono::seconds LongestWait{60};
constexpr std::chrono::milliseconds BetweenLooks{1};
constexpr int MostLooksInVain = 20000;
} // namespace

void SessionPerson::Expect(const QString& dialogClass, Deed deed) {
    awaited_.push_back({dialogClass, std::move(deed)});
}

void SessionPerson::ExpectMessage(const QString& text, int button) {
    Expect("QMessageBox", [this, text, button](QWidget& dialog) {
        auto& box = static_cast<QMessageBox&>(dialog);
        if (box.text() != text)
            Blame("message \"" + box.text() + "\" instead of \"" + text + '"');
        QAbstractButton* const pressed = box.button(static_cast<QMessageBox::StandardButton>(button));
        if (pressed != nullptr)
            return pressed->click();
        Blame("message without the button: " + box.text());
        box.reject();
    });
}

void SessionPerson::ExpectFileDialog(const QString& title, const QString& path) {
    Expect("QFileDialog", [this, title, path](QWidget& widget) {
        auto& dialog = static_cast<QFileDialog&>(widget);
        if (dialog.windowTitle() != title)
            Blame("file dialog " + dialog.windowTitle() + " instead of " + title);
        if (path.isEmpty())
            return dialog.reject();
        // Without the focus the dialog would put the name back that it proposes.
        QApplication::setActiveWindow(&dialog);
        auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
        name->setFocus();
        name->setText(path);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
}

void SessionPerson::Begin() {
    faults_.clear();
    ++watch_;
    watching_ = true;
    LookLater();
}

// A timer for each look: one that is being dealt with would not fire in the event loop of a dialog that the
// deed opens.
void SessionPerson::LookLater() {
    QTimer::singleShot(BetweenLooks, this, [this, watch = watch_] {
        if (!watching_ || watch != watch_)
            return;
        LookLater();
        Look();
    });
}

void SessionPerson::Look() {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !settled_)
        return;
    // A dialog that lies below one which is just being closed has not gone on yet.
    const int level = QThread::currentThread()->loopLevel();
    const auto [known, isNew] = levels_.try_emplace(dialog, level);
    if (isNew)
        connect(dialog, &QObject::destroyed, this, [this, dialog] { levels_.erase(dialog); });
    if (known->second != level)
        return;
    const QString name = dialog->metaObject()->className();
    if (!awaited_.empty() && awaited_.front().Class == name) {
        const Deed deed = awaited_.front().Do;
        awaited_.pop_front();
        looksInVain_ = 0;
        Settle(); // for a dialog that the deed itself waits for
        deed(*dialog);
        Settle();
        return;
    }
    // One that a timer or a queued order of this dialog opens may be on its way.
    if (!awaited_.empty() && ++looksInVain_ < MostLooksInVain)
        return;
    looksInVain_ = 0;
    const auto* const box = qobject_cast<QMessageBox*>(dialog);
    Blame("unexpected " + name + (box == nullptr ? QString() : ": " + box->text()));
    awaited_.clear();
    dialog->reject();
}

// The next look is not before the orders that are queued now.
void SessionPerson::Settle() {
    settled_ = false;
    const int number = ++settling_;
    const auto settle = [this, number] { settled_ = settled_ || number == settling_; };
    QMetaObject::invokeMethod(this, settle, Qt::QueuedConnection);
}

void SessionPerson::Wait() {
    const QDeadlineTimer deadline(LongestWait);
    do {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    } while (!awaited_.empty() && !deadline.hasExpired());
    watching_ = false;
    if (awaited_.empty())
        return;
    Blame("no " + awaited_.front().Class + " came");
    awaited_.clear();
}

QString SessionPerson::Fault() const { return faults_.join("; "); }
