// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/ReadingProgress.h"

#include <QElapsedTimer>
#include <QString>

class QProgressBar;
class QWidget;

// Reading in a window: the progress bar moves, the window stays alive, and closing it ends the read.
class WindowProgress : public ReadingProgress {
  public:
    // `title` is that of its messages.
    WindowProgress(QWidget* window, QProgressBar* bar, QString title);

    void RequestStop() { stopRequested_ = true; }

    void SetValue(double percent) override;

    // The same for a step that lets no events run: only the bar is painted.
    void PaintValue(double percent);

    // Passes over calls that follow the last one within a frame.
    void ProcessPendingEvents() override;

    // The same at any time: whether the window was closed until now is known afterwards.
    void TakePendingEvents();

    bool StopWanted() const override { return stopRequested_; }
    void ShowMessage(std::string_view text) override;

  private:
    QWidget* window_;
    QProgressBar* bar_;
    QString title_;
    QElapsedTimer sinceEvents_;
    double value_ = 0;
    bool stopRequested_ = false;
};
