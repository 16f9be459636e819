// SPDX-License-Identifier: MIT
#include "app/MainStatusBar.h"

#include "app/CountsLabel.h"
#include "list/QtText.h"
#include "list/Twips.h"

#include <QLabel>
#include <QLayout>
#include <QProgressBar>

#include <utility>

namespace {
constexpr int LeastTextWidth = 1500; // twips
constexpr int CountsWidth = 3300;    // twips; room for two numbers of eight digits
constexpr int ProgressWidth = 2700;  // twips
constexpr int ProgressTop = 25;      // twips below the top of the status bar
} // namespace

MainStatusBar::MainStatusBar(QWidget* window)
    : QStatusBar(window),
      statusText_(new ElidedLabel(1, this)),
      statusCounts_(new CountsLabel(this)),
      statusProgress_(new QLabel(this)),
      ProgressBar(new QProgressBar(window)) {
    setObjectName("sbStatusBar");
    statusText_->setObjectName("statusText");
    statusCounts_->setObjectName("statusCounts");
    statusProgress_->setObjectName("statusProgress");
    statusCounts_->setMinimumWidth(PixelsOf(CountsWidth));
    statusProgress_->setMinimumWidth(PixelsOf(ProgressWidth));
    // It has what the counts leave, whatever its text.
    statusText_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusText_->setMinimumWidth(PixelsOf(LeastTextWidth));
    addWidget(statusText_, 1);
    addPermanentWidget(statusCounts_);
    addPermanentWidget(statusProgress_);

    ProgressBar->setObjectName("ProgressBar");
    ProgressBar->setTextVisible(false);
    ProgressBar->hide();
}

void MainStatusBar::LoadLanguage(Language language) {
    ProgressBar->setAccessibleName(QtText(TextId::ProgressBar, language));
}

void MainStatusBar::ShowProgressBar() {
    // What is pending of the layout comes first. Showing the bar would bring it about, and whoever hides the
    // bar on it would do so before it is shown: it would then stay on the screen.
    ProgressBar->parentWidget()->layout()->activate();
    const QPoint panel = statusProgress_->mapTo(ProgressBar->parentWidget(), QPoint());
    const int offset = PixelsOf(ProgressTop);
    ProgressBar->setGeometry(panel.x(), mapTo(ProgressBar->parentWidget(), QPoint()).y() + offset,
                             statusProgress_->width(), height() - offset);
    ProgressBar->setVisible(isVisible());
    ProgressBar->raise();
}

void MainStatusBar::HideProgressBar() { ProgressBar->hide(); }

void MainStatusBar::ShowDescription(const QString& description) { statusCounts_->setText(description); }

void MainStatusBar::ShowLogbookStatus(std::int64_t shown, std::int64_t total, Language language) {
    statusCounts_->setText(QString("%1 %2 %3 %4")
                               .arg(shown)
                               .arg(QtText(TextId::CountSeparator, language))
                               .arg(total)
                               .arg(QtText(TextId::CountUnit, language)));
    statusCounts_->ExplanationChanged();
}

void MainStatusBar::ClearCounts() { statusCounts_->clear(); }

void MainStatusBar::ExplainCounts(std::function<QString()> explanation) {
    statusCounts_->SetExplanation(std::move(explanation));
}

bool MainStatusBar::HasCounts() const { return !statusCounts_->text().isEmpty(); }
