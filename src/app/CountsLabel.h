// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/ElidedLabel.h"

#include <functional>
#include <utility>

// The counts in the status bar. Its tool tip says why entries are not in the list, and a screen reader has
// that as the description. It is asked for only then, because it may cost a pass through the logbook.
class CountsLabel : public ElidedLabel {
    Q_OBJECT

  public:
    explicit CountsLabel(QWidget* parent);

    // Says why; "" when all entries are shown.
    void SetExplanation(std::function<QString()> explanation) { explanation_ = std::move(explanation); }

    // Tells a screen reader that there is another explanation.
    void ExplanationChanged();

    QString Explanation() const override { return explanation_ ? explanation_() : QString(); }

  private:
    std::function<QString()> explanation_;
};
