// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <QStatusBar>

#include <cstdint>
#include <functional>

class CountsLabel;
class QLabel;
class QProgressBar;

// The status bar of the main window: what the program does, how many entries are shown, and a third panel
// that the progress bar covers while a logbook is read and filtered.
class MainStatusBar : public QStatusBar {
    Q_OBJECT

  public:
    explicit MainStatusBar(QWidget* window);

    QLabel* StatusText() const { return statusText_; }
    QProgressBar* Progress() const { return ProgressBar; }

    void LoadLanguage(Language language);

    // Lays the progress bar over the third panel.
    void ShowProgressBar();
    void HideProgressBar();

    // What was read, in the second panel, until the counts are known.
    void ShowDescription(const QString& description);

    // "shown / total Items" in the second panel; ClearCounts empties it.
    void ShowLogbookStatus(std::int64_t shown, std::int64_t total, Language language);
    void ClearCounts();

    // Says on demand why entries are not shown: the tool tip of the counts.
    void ExplainCounts(std::function<QString()> explanation);
    bool HasCounts() const;

  private:
    QLabel* statusText_;
    CountsLabel* statusCounts_;
    QLabel* statusProgress_;
    QProgressBar* ProgressBar;
};
