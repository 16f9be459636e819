// SPDX-License-Identifier: MIT
#include "dialogs/frmGoToTime.h"

#include "dialogs/DialogButtons.h"
#include "dialogs/DialogList.h"
#include "dialogs/FieldNote.h"
#include "dialogs/SelectingLineEdit.h"
#include "list/QtText.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int DayColumnCount = 3; // day, entries, errors

// As logbooks write it.
QString DayText(std::chrono::sys_days day) {
    const std::chrono::year_month_day date(day);
    return QString("%1.%2.%3")
        .arg(static_cast<unsigned>(date.day()), 2, 10, QChar('0'))
        .arg(static_cast<unsigned>(date.month()), 2, 10, QChar('0'))
        .arg(static_cast<int>(date.year()), 4, 10, QChar('0'));
}

} // namespace

frmGoToTime::frmGoToTime(Language language, std::vector<LogbookDay> days,
                         std::optional<std::chrono::sys_days> day, QWidget* parent)
    : FittedDialog(parent),
      language_(language),
      days_(std::move(days)),
      lblTime(new QLabel(this)),
      tbTime(new SelectingLineEdit(this)),
      lblNote(new FieldNote("lblNote", tbTime)),
      lblDays(new QLabel(this)),
      lvDays(new DialogList(DayColumnCount, this)) {
    setObjectName("frmGoToTime");
    setSizeGripEnabled(true);
    lblTime->setObjectName("lblTime");
    lblTime->setBuddy(tbTime);
    tbTime->setObjectName("tbTime");
    lblDays->setObjectName("lblDays");
    lblDays->setBuddy(lvDays);
    lvDays->setObjectName("lvDays");
    lvDays->setSelectionMode(QAbstractItemView::SingleSelection);

    QDialogButtonBox* const buttons = OkAndCancel(language, *this);
    cmdOK = buttons->findChild<QPushButton*>("cmdOK");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblTime);
    layout->addWidget(tbTime);
    layout->addWidget(lblNote);
    layout->addWidget(lblDays);
    layout->addWidget(lvDays);
    layout->addWidget(buttons);

    LoadLanguage();
    ShowDays(day);
    connect(tbTime, &QLineEdit::textChanged, this, &frmGoToTime::ShowNote);
    connect(lvDays, &QTreeWidget::itemSelectionChanged, this, &frmGoToTime::ShowNote);
    connect(lvDays, &DialogList::EditWanted, this, &frmGoToTime::accept, Qt::QueuedConnection);
    tbTime->setFocus();
    resize(sizeHint().expandedTo({420, 360}));
    ShowNote();
}

void frmGoToTime::LoadLanguage() {
    setWindowTitle(QtText(TextId::GoToTimeTitle, language_));
    lblTime->setText(QtText(TextId::GoToTimeField, language_));
    lblDays->setText(QtText(TextId::GoToTimeDays, language_));
    lvDays->setAccessibleName(QtPlainText(TextId::GoToTimeDays, language_));
    lvDays->setHeaderLabels({QtText(TextId::GoToTimeDay, language_),
                             QtText(TextId::HistoryEntries, language_),
                             QtText(TextId::HistoryErrors, language_)});
}

void frmGoToTime::ShowDays(std::optional<std::chrono::sys_days> day) {
    QTreeWidgetItem* chosen = nullptr;
    for (const LogbookDay& shown : days_) {
        auto* const row = new QTreeWidgetItem(lvDays);
        row->setText(0, DayText(shown.Day));
        row->setText(1, QString::number(shown.Entries));
        row->setText(2, QString::number(shown.Errors));
        row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        row->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
        if (chosen == nullptr || !day || shown.Day <= *day)
            chosen = row;
    }
    if (chosen != nullptr)
        lvDays->SelectAndShow(chosen);
    for (int column = 0; column < DayColumnCount; ++column)
        lvDays->resizeColumnToContents(column);
}

std::optional<Stamp> frmGoToTime::Entered() const {
    std::optional<std::chrono::sys_days> day;
    if (QTreeWidgetItem* const row = lvDays->SelectedItem())
        day = days_[static_cast<std::size_t>(lvDays->indexOfTopLevelItem(row))].Day;
    const QString text = tbTime->text().trimmed();
    if (text.isEmpty())
        return day ? std::optional(Stamp{*day}) : std::nullopt;
    return ReadWantedTime(text.toStdString(), day);
}

std::optional<Stamp> frmGoToTime::Time() const { return result() == Accepted ? Entered() : std::nullopt; }

void frmGoToTime::accept() {
    if (Entered())
        QDialog::accept();
}

void frmGoToTime::ShowNote() {
    const bool isRead = Entered().has_value();
    cmdOK->setEnabled(isRead);
    lblNote->Say(isRead ? QString() : QtText(TextId::GoToTimeForms, language_));
}
