// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/FittedDialog.h"
#include "settings/Texts.h"

#include <QElapsedTimer>

#include <chrono>

class QProgressBar;

// The progress of a step that runs on in the window's thread and can be ended: by the button, by Escape, or
// by closing this dialog. It blocks the window below it, and comes up only when the step takes a while.
class frmProgress : public FittedDialog {
    Q_OBJECT

  public:
    frmProgress(TextId what, Language language, QWidget* parent);

    // Tells the percentage done, and whether the step goes on. While the dialog is shown, events run.
    bool GoesOn(double percent);

    void reject() override;

    // How long a step takes until the dialog comes up. Tests shorten it.
    static inline std::chrono::milliseconds ShownAfter{500};

  private:
    QProgressBar* pbProgress;
    QElapsedTimer sinceBegin_;
    QElapsedTimer sinceEvents_;
    bool isEnded_ = false;
};
