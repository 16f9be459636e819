// SPDX-License-Identifier: MIT
#include "app/frmMain.h"

#include "filter/Filter.h"
#include "list/LogbookColumns.h"
#include "logbook/Mod_FileHandling.h"
#include "logbook/modUtil.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QScopeGuard>
#include <QStatusBar>
#include <QTableView>

namespace {

constexpr int TwipsPerPixel = 15;

QTableView* MakeLogbookList(QAbstractItemModel* model, QWidget* parent) {
    auto* list = new QTableView(parent);
    list->setObjectName("lvLogbook");
    list->setAccessibleName("Logbook");
    list->setModel(model);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setShowGrid(false);
    list->setWordWrap(false);
    list->setTabKeyNavigation(false);
    list->verticalHeader()->hide();
    list->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    list->verticalHeader()->setDefaultSectionSize(list->fontMetrics().height() + 4);
    list->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    list->horizontalHeader()->setHighlightSections(false);
    for (int column = 0; column < LogbookColumnCount; ++column)
        list->setColumnWidth(column,
                             LogbookColumns[static_cast<std::size_t>(column)].DefaultWidth / TwipsPerPixel);
    return list;
}

} // namespace

frmMain::frmMain(Logbook& logbook, CodePage codePage)
    : logbook_(logbook),
      codePage_(std::move(codePage)),
      BaseCaption("Qorvix"),
      model_(new LogbookModel(logbook.Entries, this)),
      lvLogbook(MakeLogbookList(model_, this)),
      sbStatusBar(new QStatusBar(this)),
      statusText_(new QLabel("Ready", this)),
      statusCounts_(new QLabel(this)),
      ProgressBar(new QProgressBar(this)),
      progress_(this, ProgressBar) {
    setObjectName("frmMain");
    setWindowTitle(BaseCaption);
    resize(14000 / TwipsPerPixel, 12000 / TwipsPerPixel);
    setCentralWidget(lvLogbook);

    sbStatusBar->setObjectName("sbStatusBar");
    statusCounts_->setObjectName("statusCounts");
    ProgressBar->setObjectName("ProgressBar");
    ProgressBar->setTextVisible(false);
    ProgressBar->setMaximumWidth(200);
    ProgressBar->hide();
    sbStatusBar->addWidget(statusText_, 1);
    sbStatusBar->addPermanentWidget(ProgressBar);
    sbStatusBar->addPermanentWidget(statusCounts_);
    setStatusBar(sbStatusBar);
}

void frmMain::OpenLogbooks(const QStringList& files) {
    for (const QString& file : files) {
        if (progress_.StopWanted())
            return;
        if (!ReadAndShowLogbook(file))
            continue;
        std::string folder;
        std::string fileName;
        SplitPath(file.toStdString(), folder, fileName);
        AddNameToTitle(QString::fromStdString(fileName.substr(0, fileName.find('.'))));
    }
}

bool frmMain::ReadAndShowLogbook(const QString& file) {
    if (logbook_.Busy)
        return false;
    logbook_.Busy = true;
    model_->ClearRows();
    statusCounts_->clear();
    ProgressBar->show();
    statusText_->setText("Reading log...");
    QApplication::setOverrideCursor(Qt::WaitCursor);

    std::string title;
    const bool read = ReadLogbook(file.toStdString(), logbook_, title, progress_, codePage_);
    if (read)
        FillList();

    QApplication::restoreOverrideCursor();
    statusText_->setText("Ready");
    ProgressBar->hide();
    ShowLogbookStatus(logbook_.EntryCount);
    logbook_.Busy = false;
    if (progress_.StopWanted()) {
        // The window was closed while it was reading.
        close();
        return false;
    }
    if (logbook_.LoadState == LoadStates::Done)
        return true;
    ShowLogbookError(logbook_.LoadState);
    return false;
}

void frmMain::FillList() {
    logbook_.LoadState = LoadStates::Filtering;
    LogbookRows rows;
    const bool filled = ApplyFilters(logbook_.Entries, rows);
    model_->SetRows(std::move(rows));
    if (filled)
        logbook_.LoadState = LoadStates::Done;
    else
        QMessageBox::warning(this, "Filter error", "Error applying filters");
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!logbook_.Busy)
        return QMainWindow::closeEvent(event);
    progress_.RequestStop();
    event->ignore();
}

void frmMain::ShowLogbookStatus(std::int64_t total) {
    statusCounts_->setText(QString("%1 / %2 Items").arg(model_->rowCount()).arg(total));
}

void frmMain::ShowLogbookError(std::int16_t code) {
    const char* const message = code == LoadStates::Opening     ? "Error opening logbook file"
                                : code == LoadStates::Reading   ? "Error reading logbook file"
                                : code == LoadStates::Filtering ? "Filter error"
                                                                : nullptr;
    if (message != nullptr)
        QMessageBox::information(this, BaseCaption, message);
}

void frmMain::AddNameToTitle(const QString& name) { setWindowTitle(name + " - " + BaseCaption); }
