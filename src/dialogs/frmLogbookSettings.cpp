// SPDX-License-Identifier: MIT
#include "dialogs/frmLogbookSettings.h"

#include "base/Paths.h"
#include "base/ProgramFolder.h"
#include "dialogs/DialogButtons.h"
#include "dialogs/DialogColumns.h"
#include "dialogs/DialogList.h"
#include "dialogs/FieldNote.h"
#include "dialogs/FilterFileDialog.h"
#include "dialogs/ListPopup.h"
#include "dialogs/MessageBox.h"
#include "dialogs/frmFilterSettings.h"
#include "filter/FilterFile.h"
#include "filter/FilterStorage.h"
#include "list/QtText.h"
#include "settings/ReasonText.h"
#include "settings/Registry.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>

#include <optional>
#include <system_error>
#include <utility>

namespace {

bool Confirm(const QString& question, QWidget& window, QMessageBox::StandardButton defaultAnswer) {
    MessageBox box(QMessageBox::Question, window.windowTitle(), question, QMessageBox::Yes | QMessageBox::No,
                   &window, defaultAnswer);
    return box.exec() == QMessageBox::Yes;
}

} // namespace

frmLogbookSettings::frmLogbookSettings(const FilterDialogContext& context, std::function<void()> apply,
                                       QWidget* parent)
    : FittedDialog(parent),
      context_(context),
      apply_(std::move(apply)),
      rows_(context.Labels, context.DialogLanguage),
      lists_(LoadFilters(context.Settings, context.DialogLanguage)),
      initFilterDir_(FilterFolder(context.Settings, ProgramFolderWithSeparator())),
      lblFilter(new QLabel(this)),
      lvFilter(new DialogList(FilterColumns::Count, this)),
      lblNote(new FieldNote("lblNote", lvFilter)),
      cmdExport(new QPushButton(this)),
      cmdImport(new QPushButton(this)),
      cmdApply(new QPushButton(this)),
      Timer1(new QTimer(this)) {
    setObjectName("frmLogbookSettings");
    MakeControls();
    LoadLanguage();
    ShowRows(lists_.Filters);
    lvFilter->setFocus();
    resize(sizeHint().expandedTo({480, 340}));
    LoadDialogColumns(context.Settings, SubKeys::FilterDialog, FilterColumnWidths, *lvFilter->header());
}

void frmLogbookSettings::MakeControls() {
    setSizeGripEnabled(true);
    lblFilter->setObjectName("lblFilter");
    lblFilter->setBuddy(lvFilter);
    lvFilter->setObjectName("lvFilter");
    cmdExport->setObjectName("cmdExport");
    cmdImport->setObjectName("cmdImport");
    cmdApply->setObjectName("cmdApply");
    Timer1->setObjectName("Timer1");
    auto* const popup = new ListPopup(context_.DialogLanguage, this);

    auto* const fileButtons = new QHBoxLayout;
    fileButtons->addWidget(cmdExport);
    fileButtons->addWidget(cmdImport);
    fileButtons->addStretch();
    QDialogButtonBox* const buttons = OkAndCancel(context_.DialogLanguage, *this);
    buttons->addButton(cmdApply, QDialogButtonBox::ApplyRole);
    setTabOrder(buttons->findChild<QPushButton*>("cmdCancel"), cmdApply);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(lblFilter);
    layout->addWidget(lvFilter, 1);
    layout->addWidget(lblNote);
    layout->addLayout(fileButtons);
    layout->addWidget(buttons);

    connect(cmdExport, &QPushButton::clicked, this, &frmLogbookSettings::Export);
    connect(cmdImport, &QPushButton::clicked, this, &frmLogbookSettings::Import);
    connect(cmdApply, &QPushButton::clicked, this, &frmLogbookSettings::Apply);
    connect(lvFilter, &DialogList::PopupWanted, popup,
            [popup](const QPoint& position) { popup->popup(position); });
    connect(lvFilter, &DialogList::EditWanted, this, [this] { Start(Command::Edit); });
    connect(lvFilter, &DialogList::RemoveWanted, this, &frmLogbookSettings::RemoveFilters);
    // Changed by its check box; a filter written here is noted when it is complete.
    connect(lvFilter, &DialogList::itemChanged, this, [this] { ShowNote(); });
    connect(popup, &ListPopup::Add, this, [this] { Start(Command::Add); });
    connect(popup, &ListPopup::Edit, this, [this] { Start(Command::Edit); });
    connect(popup, &ListPopup::Remove, this, &frmLogbookSettings::RemoveFilters);
    connect(Timer1, &QTimer::timeout, this, &frmLogbookSettings::RunCommand);
}

void frmLogbookSettings::LoadLanguage() {
    const auto text = [this](TextId id) { return QtText(id, context_.DialogLanguage); };
    setWindowTitle(text(TextId::LogbookSettingsTitle));
    lblFilter->setText(text(TextId::lvFilter));
    lvFilter->setAccessibleName(QtPlainText(TextId::lvFilter, context_.DialogLanguage));
    lvFilter->setHeaderLabels({text(TextId::FilterColumnType), text(TextId::FilterColumnString),
                               text(TextId::FilterColumnName), text(TextId::FilterColumnEmitter)});
    cmdExport->setText(text(TextId::cmdExport));
    cmdImport->setText(text(TextId::cmdImport));
    cmdApply->setText(text(TextId::cmdApply));
}

void frmLogbookSettings::accept() {
    if (!ConfirmEmptyList())
        return;
    SaveFilter();
    resultText_ = "OK";
    QDialog::accept();
}

void frmLogbookSettings::reject() {
    resultText_ = "CANCEL";
    QDialog::reject();
}

void frmLogbookSettings::done(int result) {
    SaveDialogColumns(context_.Settings, SubKeys::FilterDialog, FilterColumnWidths, *lvFilter->header());
    QDialog::done(result);
}

void frmLogbookSettings::Apply() {
    if (!ConfirmEmptyList())
        return;
    SaveFilter();
    apply_();
}

void frmLogbookSettings::SaveFilter() {
    lists_.Filters = FiltersToStore();
    SaveFilters(context_.Settings, lists_, initFilterDir_);
}

// Only the timer opens a dialog, never an event of the list or the menu.
void frmLogbookSettings::Start(Command command) {
    command_ = command;
    Timer1->start();
}

void frmLogbookSettings::RunCommand() {
    Timer1->stop();
    switch (std::exchange(command_, Command::None)) {
    case Command::Add:
        return AddFilter();
    case Command::Edit:
        return EditFilter();
    case Command::None:
        break;
    }
}

void frmLogbookSettings::AddFilter() {
    frmFilterSettings dialog(context_, lists_.StringFilters, this);
    dialog.exec();
    if (dialog.ResultText() != "OK" || dialog.FilterExists(Rows()))
        return;
    auto* const row = new QTreeWidgetItem;
    row->setCheckState(FilterColumns::Type, Qt::Checked);
    lvFilter->addTopLevelItem(row);
    WriteFilterToListItem(dialog.Definition(), *row);
    lvFilter->SelectAndShow(row);
}

void frmLogbookSettings::EditFilter() {
    QTreeWidgetItem* const row = lvFilter->SelectedItem();
    if (row == nullptr)
        return;
    frmFilterSettings dialog(context_, lists_.StringFilters, this);
    dialog.Preset(rows_.Read(*row));
    dialog.exec();
    if (dialog.ResultText() == "OK")
        WriteFilterToListItem(dialog.Definition(), *row);
}

// The check box of the row stays as it is.
void frmLogbookSettings::WriteFilterToListItem(const FilterDefinition& filter, QTreeWidgetItem& row) {
    FilterDefinition written = filter;
    written.Active = row.checkState(FilterColumns::Type) == Qt::Checked;
    const QSignalBlocker unnoted(lvFilter);
    rows_.Write(written, row);
    ShowNote();
}

void frmLogbookSettings::RemoveFilters() {
    lvFilter->RemoveSelectedRows();
    ShowNote();
}

void frmLogbookSettings::Export() {
    const std::optional<std::string> path = FilterFileToSave(initFilterDir_, context_.DialogLanguage, this);
    if (path)
        SaveFilterInFile(*path);
}

void frmLogbookSettings::Import() {
    const std::optional<std::string> path = FilterFileToOpen(initFilterDir_, context_.DialogLanguage, this);
    if (path)
        GetFilterFromFile(*path);
}

void frmLogbookSettings::Warn(const QString& text) {
    MessageBox box(QMessageBox::Warning, windowTitle(), text, QMessageBox::Ok, this);
    box.exec();
}

bool frmLogbookSettings::SaveFilterInFile(const std::string& path) {
    const std::vector<FilterDefinition> filters = FiltersToStore();
    if (!ConfirmLoss(filters))
        return false;
    const std::error_code error = ExportFilterFile(path, filters, context_.FileCodePage);
    if (error)
        Warn(ToQString(path) + QtText(TextId::FileNotWritten, context_.DialogLanguage) + " (" +
             ToQString(ReasonText(error, context_.DialogLanguage)) + ")");
    return !error;
}

void frmLogbookSettings::GetFilterFromFile(const std::string& path) {
    using Outcome = FilterFileContent::Outcome;
    const FilterFileContent content = ImportFilterFile(path, context_.FileCodePage);
    if (content.Result == Outcome::NoHeader) {
        Warn(QtText(TextId::FilterFileDirection, context_.DialogLanguage));
        return;
    }
    const bool headerWasRead = content.Result != Outcome::CannotRead || content.Line > 0;
    if (headerWasRead)
        ShowRows(content.Filters);
    if (content.Result == Outcome::CannotRead) {
        Warn(ToQString(FilterFileMessage(path, content, context_.DialogLanguage)));
        return;
    }
    // A note has no room for long paths.
    std::string folder;
    std::string name;
    SplitPath(path, folder, name);
    ShowNote(ToQString(FilterFileMessage(name, content, context_.DialogLanguage)));
}

// True when the list may be stored. If the person agrees, an empty list becomes one that shows every entry.
bool frmLogbookSettings::ConfirmEmptyList() {
    if (lvFilter->topLevelItemCount() > 0)
        return true;
    const QString question = QtText(TextId::FilterListEmpty, context_.DialogLanguage) + '\n' +
                             QtText(TextId::AskShowAll, context_.DialogLanguage);
    if (!Confirm(question, *this, QMessageBox::Yes))
        return false;
    ShowRows(DefaultFilters());
    return true;
}

// True when a filter file loses no character of the filters, or the person accepts the loss.
bool frmLogbookSettings::ConfirmLoss(const std::vector<FilterDefinition>& filters) {
    QStringList numbers;
    for (const std::size_t place : FiltersThatLose(filters, context_.FileCodePage))
        numbers << QString::number(place + 1);
    if (numbers.isEmpty())
        return true;
    const QString question = QtText(TextId::FiltersThatLose, context_.DialogLanguage) + numbers.join(", ") +
                             '\n' + QtText(TextId::AskExportAll, context_.DialogLanguage);
    return Confirm(question, *this, QMessageBox::No);
}

void frmLogbookSettings::ShowRows(const std::vector<FilterDefinition>& filters) {
    const QSignalBlocker unnoted(lvFilter);
    lvFilter->clear();
    for (const FilterDefinition& filter : filters)
        rows_.Write(filter, *new QTreeWidgetItem(lvFilter));
    if (!filters.empty())
        lvFilter->SelectAndShow(lvFilter->topLevelItem(0));
    ShowNote();
}

std::vector<FilterDefinition> frmLogbookSettings::Rows() const {
    std::vector<FilterDefinition> filters;
    filters.reserve(static_cast<std::size_t>(lvFilter->topLevelItemCount()));
    for (int row = 0; row < lvFilter->topLevelItemCount(); ++row)
        filters.push_back(rows_.Read(*lvFilter->topLevelItem(row)));
    return filters;
}

std::vector<FilterDefinition> frmLogbookSettings::FiltersToStore() const {
    std::vector<FilterDefinition> filters = Rows();
    return filters.empty() ? DefaultFilters() : filters;
}

// Shows why the rows cannot be stored, behind a text about a file.
void frmLogbookSettings::ShowNote(const QString& aboutFile) {
    QStringList notes;
    if (!aboutFile.isEmpty())
        notes << aboutFile;
    for (const FilterDefinition& filter : Rows()) {
        const StorageObstacle obstacle = ObstacleOf(filter);
        if (obstacle == StorageObstacle::None)
            continue;
        notes << QtText(obstacle == StorageObstacle::Separator ? TextId::FilterWithSeparator
                                                               : TextId::FilterTooLong,
                        context_.DialogLanguage);
        break;
    }
    lblNote->Say(notes.join('\n'));
}
