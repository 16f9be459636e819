// SPDX-License-Identifier: MIT
#include "overview/SessionModel.h"

#include "history/ReadableTexts.h"
#include "history/SessionRemarks.h"
#include "list/QtText.h"
#include "overview/SortNumbers.h"

namespace {

enum class SessionColumn { Number, Start, Recorded, ToNext, Entries, Errors, Warnings, Remarks };

constexpr HistoryColumn SessionColumns[] = {
    {TextId::HistorySession, HistoryColumn::Right},   {TextId::HistoryStart},
    {TextId::HistoryRecorded, HistoryColumn::Right},  {TextId::HistoryToNext, HistoryColumn::Right},
    {TextId::HistoryEntries, HistoryColumn::Right},   {TextId::HistoryErrors, HistoryColumn::Right},
    {TextId::OverviewWarnings, HistoryColumn::Right}, {TextId::HistoryRemarks},
};

} // namespace

SessionModel::SessionModel(QObject* parent) : HistoryModel(SessionColumns, parent) {}

void SessionModel::ShowHistory(const LogbookHistory* history, const EntryTable* entries) {
    history_ = history;
    entries_ = entries;
    ShowRecords(history != nullptr ? history->Sessions().size() : 0);
}

std::optional<EntryNumber> SessionModel::FirstEntryOf(std::size_t record) const {
    const EntryNumber first = history_->Sessions()[record].First;
    return first < entries_->Count() ? std::optional(first) : std::nullopt;
}

QString SessionModel::CellOf(std::size_t record, int column) const {
    const Session& session = history_->Sessions()[record];
    using enum SessionColumn;
    switch (static_cast<SessionColumn>(column)) {
    case Start:
        return ToQString(session.Start ? LogbookText(*session.Start) : StartText(session, DialogLanguage()));
    case Recorded:
        return ToQString(ClockText(session.Recorded));
    case ToNext:
        return ToQString(ClockText(session.ToNext));
    case Remarks:
        return ToQString(SessionRemarks(session, *entries_, history_->Keys(), DialogLanguage()));
    default:
        return QString::number(NumberOf(record, column).value_or(0), 'f', 0);
    }
}

std::optional<double> SessionModel::NumberOf(std::size_t record, int column) const {
    const Session& session = history_->Sessions()[record];
    using enum SessionColumn;
    switch (static_cast<SessionColumn>(column)) {
    case Number:
        return static_cast<double>(record + 1);
    case Start:
        return SortNumber(session.Start);
    case Recorded:
        return SortNumber(session.Recorded);
    case ToNext:
        return SortNumber(session.ToNext);
    case Entries:
        return static_cast<double>(session.EntryCount());
    case Errors:
        return session.Errors;
    case Warnings:
        return session.Warnings;
    case Remarks:
        break;
    }
    return std::nullopt;
}
