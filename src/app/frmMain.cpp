// SPDX-License-Identifier: MIT
#include "app/frmMain.h"

#include "dialogs/frmLanguageDialog.h"
#include "filter/Filter.h"
#include "filter/FilterFile.h"
#include "filter/FilterStorage.h"
#include "list/LogbookColumns.h"
#include "list/QtText.h"
#include "logbook/Mod_FileHandling.h"
#include "sources/CommandLine.h"
#include "sources/LogbookSource.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressBar>
#include <QStatusBar>
#include <QTableView>

#include <optional>

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

frmMain::frmMain(Logbook& logbook, Registry& registry, const TempFolder& tempFolder, CodePage codePage)
    : logbook_(logbook),
      registry_(registry),
      tempFolder_(tempFolder),
      codePage_(std::move(codePage)),
      BaseCaption("Qorvix"),
      model_(new LogbookModel(logbook.Entries, this)),
      lvLogbook(MakeLogbookList(model_, this)),
      sbStatusBar(new QStatusBar(this)),
      statusText_(new QLabel(this)),
      statusCounts_(new QLabel(this)),
      ProgressBar(new QProgressBar(this)),
      progress_(this, ProgressBar),
      user_(this, statusText_) {
    setObjectName("frmMain");
    setWindowTitle(BaseCaption);
    resize(14000 / TwipsPerPixel, 12000 / TwipsPerPixel);
    setCentralWidget(lvLogbook);
    MakeMenus();

    sbStatusBar->setObjectName("sbStatusBar");
    statusText_->setObjectName("statusText");
    statusCounts_->setObjectName("statusCounts");
    ProgressBar->setObjectName("ProgressBar");
    ProgressBar->setTextVisible(false);
    ProgressBar->setMaximumWidth(200);
    ProgressBar->hide();
    sbStatusBar->addWidget(statusText_, 1);
    sbStatusBar->addPermanentWidget(ProgressBar);
    sbStatusBar->addPermanentWidget(statusCounts_);
    setStatusBar(sbStatusBar);
    LoadLanguage();
}

void frmMain::MakeMenus() {
    mnuExtras = menuBar()->addMenu(QString());
    mnuExtras->setObjectName("mnuExtras");
    mnuExtrasDialogLanguage = mnuExtras->addAction(QString(), this, &frmMain::ChooseLanguage);
    mnuExtrasDialogLanguage->setObjectName("mnuExtrasDialogLanguage");
}

void frmMain::LoadLanguage() {
    language_ = ReadLanguage(registry_);
    qtCatalogue_.SetLanguage(language_);
    user_.SetLanguage(language_);
    mnuExtras->setTitle(QtText(TextId::mnuExtras, language_));
    mnuExtrasDialogLanguage->setText(QtText(TextId::mnuExtrasDialogLanguage, language_));
    model_->SetLanguage(language_);
    ShowStatus(TextId::StatusReady);
    if (!statusCounts_->text().isEmpty())
        ShowLogbookStatus(logbook_.EntryCount);
}

void frmMain::ChooseLanguage() {
    if (logbook_.Busy)
        return;
    frmLanguageDialog dialog(language_, this);
    dialog.exec();
    const std::optional<Language> choice = dialog.Choice();
    if (!choice || *choice == language_)
        return;
    WriteLanguage(registry_, *choice);
    LoadLanguage();
}

void frmMain::RunCommandLine(const std::vector<std::string>& arguments) {
    const CommandLine commandLine = ParseCommandLine(JoinArguments(arguments), IsSlashFile);
    for (const std::string& source : commandLine.Sources)
        if (!progress_.StopWanted())
            OpenLogbook(source);
    if (commandLine.ShowUsage && !progress_.StopWanted())
        user_.ShowMessage(UsageText(language_), UserInterface::MessageIcon::None);
}

bool frmMain::OpenLogbook(const std::string& path) {
    if (logbook_.Busy)
        return false;
    const std::optional<LogbookSource> source = ResolveSource(path, tempFolder_, user_, language_);
    if (!source)
        return false;
    if (!source->FilterFile.empty())
        ReplaceFilters(source->FilterFile);
    if (!ReadAndShowLogbook(source->LogbookFile))
        return false;
    AddNameToTitle(QString::fromStdString(source->Name));
    return true;
}

// The filters of an archive become the active ones. A damaged filter file is told, and the active ones stay.
void frmMain::ReplaceFilters(const std::string& filterFile) {
    FilterFileContent content = ImportFilterFile(filterFile, codePage_);
    if (content.Result != FilterFileContent::Outcome::Read) {
        user_.ShowMessage(FilterFileMessage(filterFile, content, language_),
                          UserInterface::MessageIcon::Exclamation);
        return;
    }
    FilterLists lists = LoadFilters(registry_, language_);
    lists.Filters = std::move(content.Filters);
    SaveFilters(registry_, lists, registry_.ReadFilterSettingString("InitFilterDir", ""));
}

bool frmMain::ReadAndShowLogbook(const std::string& file) {
    if (logbook_.Busy)
        return false;
    logbook_.Busy = true;
    model_->ClearRows();
    statusCounts_->clear();
    ProgressBar->show();
    ShowStatus(TextId::StatusReading);
    QApplication::setOverrideCursor(Qt::WaitCursor);

    std::string title;
    if (ReadLogbook(file, logbook_, title, progress_, codePage_))
        FillList();

    QApplication::restoreOverrideCursor();
    ShowStatus(TextId::StatusReady);
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

void frmMain::ApplyFilter() {
    if (logbook_.Busy)
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    ProgressBar->show();
    FillList();
    ProgressBar->hide();
    QApplication::restoreOverrideCursor();
    ShowStatus(TextId::StatusReady);
    ShowLogbookStatus(logbook_.EntryCount);
}

void frmMain::FillList() {
    ShowStatus(TextId::StatusFiltering);
    sbStatusBar->repaint();
    const QModelIndex current = lvLogbook->currentIndex();
    const bool selected = current.isValid() && lvLogbook->selectionModel()->isRowSelected(current.row());
    const EntryNumber before =
        selected ? model_->Rows()[static_cast<std::size_t>(current.row())].Entry : MostEntries;

    logbook_.LoadState = LoadStates::Filtering;
    LogbookRows rows;
    const FilterLists lists = LoadFilters(registry_, language_);
    const bool filled = ApplyFilters(logbook_.Entries, lists.Filters, rows,
                                     [this](double percent) { progress_.PaintValue(percent); });
    model_->SetRows(std::move(rows));
    if (!filled) {
        QMessageBox::warning(this, QtText(TextId::FilterError, language_),
                             QtText(TextId::FilterFailed, language_));
        return;
    }
    logbook_.LoadState = LoadStates::Done;
    if (selected)
        SelectEntry(before);
}

void frmMain::SelectEntry(EntryNumber number) {
    const std::optional<std::size_t> row = RowForEntry(model_->Rows(), number);
    if (!row)
        return;
    lvLogbook->selectRow(static_cast<int>(*row));
    lvLogbook->scrollTo(model_->index(static_cast<int>(*row), 0));
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!logbook_.Busy)
        return QMainWindow::closeEvent(event);
    progress_.RequestStop();
    event->ignore();
}

void frmMain::ShowStatus(TextId text) { statusText_->setText(QtText(text, language_)); }

void frmMain::ShowLogbookStatus(std::int64_t total) {
    statusCounts_->setText(QString("%1 %2 %3 %4")
                               .arg(model_->rowCount())
                               .arg(QtText(TextId::CountSeparator, language_))
                               .arg(total)
                               .arg(QtText(TextId::CountUnit, language_)));
}

void frmMain::ShowLogbookError(std::int16_t code) {
    const std::optional<TextId> message = code == LoadStates::Opening     ? std::optional(TextId::OpenFailed)
                                          : code == LoadStates::Reading   ? std::optional(TextId::ReadFailed)
                                          : code == LoadStates::Filtering ? std::optional(TextId::FilterError)
                                                                          : std::nullopt;
    if (message)
        QMessageBox(QMessageBox::NoIcon, BaseCaption, QtText(*message, language_), QMessageBox::Ok, this)
            .exec();
}

void frmMain::AddNameToTitle(const QString& name) { setWindowTitle(name + " - " + BaseCaption); }
