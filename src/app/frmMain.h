// SPDX-License-Identifier: MIT
#pragma once

#include "app/WindowProgress.h"
#include "list/LogbookModel.h"
#include "logbook/CodePage.h"
#include "logbook/Logbook.h"

#include <QMainWindow>

class QLabel;
class QProgressBar;
class QStatusBar;
class QTableView;

// The program's main window: it shows one logbook as a list.
class frmMain : public QMainWindow {
    Q_OBJECT

  public:
    // The logbook must outlive the window.
    frmMain(Logbook& logbook, CodePage codePage);

    // Opens logbooks one after the other, each in place of the one before; the last that opens stays.
    void OpenLogbooks(const QStringList& files);

    // Reads a logbook file and fills the list. False when a run-time error left it unfinished, which the user
    // has then been told. A file that cannot be opened gives an empty list without a message.
    bool ReadAndShowLogbook(const QString& file);

  protected:
    // While a logbook is being read, closing ends the read first.
    void closeEvent(QCloseEvent* event) override;

  private:
    void ShowLogbookStatus(std::int64_t total);
    void ShowLogbookError(std::int16_t code);
    void AddNameToTitle(const QString& name);
    void FillList();

    Logbook& logbook_;
    CodePage codePage_;
    QString BaseCaption;
    LogbookModel* model_;
    QTableView* lvLogbook;
    QStatusBar* sbStatusBar;
    QLabel* statusText_;
    QLabel* statusCounts_;
    QProgressBar* ProgressBar;
    WindowProgress progress_;
};
