// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/ReadingProgress.h"

#include <QElapsedTimer>
#include <QString>

class QProgressBar;
class QWidget;

// The progress of a read in a window: the bar moves, the window stays alive, and closing it ends the read.
class WindowProgress : public ReadingProgress {
  public:
    // Its messages have this title.
    WindowProgress(QWidget* window, QProgressBar* bar, QString title);

    void RequestStop() { stopRequested_ = true; }

    void SetValue(double percent) override;

    // Sets the value in a step that must not process events: paints only the bar.
    void PaintValue(double percent);

    // Ignores calls that come within a frame's time of the last one.
    void ProcessPendingEvents() override;

    // Processes events at once; afterwards it is known whether the window has been closed until now.
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
