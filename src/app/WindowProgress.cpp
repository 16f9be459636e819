// SPDX-License-Identifier: MIT
#include "app/WindowProgress.h"

#include "dialogs/MessageBox.h"
#include "list/QtText.h"

#include <QCoreApplication>
#include <QProgressBar>

namespace {
// A large logbook reports a hundred thousand times a second; a person sees no more than this.
constexpr qint64 FrameTime = 20; // milliseconds
} // namespace

WindowProgress::WindowProgress(QWidget* window, QProgressBar* bar, QString title)
    : window_(window), bar_(bar), title_(std::move(title)) {
    sinceEvents_.start();
}

void WindowProgress::SetValue(double percent) {
    value_ = percent;
    if (percent == 0)
        bar_->setValue(0);
}

void WindowProgress::PaintValue(double percent) {
    if (percent != 0 && sinceEvents_.elapsed() < FrameTime)
        return;
    bar_->setValue(static_cast<int>(percent));
    bar_->repaint();
    sinceEvents_.start();
}

void WindowProgress::ProcessPendingEvents() {
    if (sinceEvents_.elapsed() >= FrameTime)
        TakePendingEvents();
}

void WindowProgress::TakePendingEvents() {
    bar_->setValue(static_cast<int>(value_));
    QCoreApplication::processEvents();
    sinceEvents_.start();
}

void WindowProgress::ShowMessage(std::string_view text) {
    MessageBox box(QMessageBox::Information, title_, ToQString(text), QMessageBox::Ok, window_);
    box.exec();
}
