// SPDX-License-Identifier: MIT
#include "overview/ErrorModel.h"

#include "history/ReadableTexts.h"
#include "list/QtText.h"
#include "logbook/LogbookEntry.h"
#include "overview/SortNumbers.h"

#include <algorithm>

namespace {

enum class ErrorColumn {
    Count,
    Key,
    English,
    German,
    Last,
    First,
    Episodes,
    InSessions,
    Cleared,
    InAMinute,
    Type
};

constexpr HistoryColumn ErrorColumns[] = {
    {TextId::HistoryEntries, HistoryColumn::Right},
    {TextId::HistoryErrorAndText},
    {TextId::HistoryEnglish},
    {TextId::HistoryGerman},
    {TextId::HistoryLast},
    {TextId::OverviewFirst},
    {TextId::HistoryEpisodes, HistoryColumn::Right},
    {TextId::OverviewSessions, HistoryColumn::Right},
    {TextId::HistoryCleared, HistoryColumn::Right},
    {TextId::HistoryChatter, HistoryColumn::Right},
    {TextId::OverviewType},
};

QString TextOr(const std::optional<std::string>& text, TextId otherwise, Language language) {
    return text ? ToQString(*text) : QtText(otherwise, language);
}

} // namespace

ErrorModel::ErrorModel(QObject* parent) : HistoryModel(ErrorColumns, parent) {}

void ErrorModel::ShowHistory(const LogbookHistory* history) {
    history_ = history;
    ShowRecords(history != nullptr ? history->Errors().size() : 0);
}

QString ErrorModel::MissingTexts() const {
    if (history_ == nullptr)
        return {};
    const std::vector<ExplainedError>& errors = history_->Errors();
    const auto without = [&](std::optional<std::string> ExplainedError::*text) {
        return QString::number(std::count_if(errors.begin(), errors.end(), [&](const ExplainedError& error) {
            return !(error.*text).has_value();
        }));
    };
    return without(&ExplainedError::English) + QtText(TextId::HistoryOf, DialogLanguage()) +
           QString::number(errors.size()) + QtText(TextId::HistoryWithoutEnglish, DialogLanguage()) +
           without(&ExplainedError::German) + QtText(TextId::HistoryWithoutGerman, DialogLanguage());
}

QString ErrorModel::CellOf(std::size_t record, int column) const {
    const ExplainedError& error = history_->Errors()[record];
    const auto stampText = [&](const std::optional<Stamp>& stamp) {
        return stamp ? ToQString(LogbookText(*stamp)) : QtText(TextId::HistoryUnreadable, DialogLanguage());
    };
    using enum ErrorColumn;
    switch (static_cast<ErrorColumn>(column)) {
    case Key:
        return ToQString(error.Record.Key);
    case English:
        return TextOr(error.English, TextId::OverviewNoText, DialogLanguage());
    case German:
        return TextOr(error.German, TextId::OverviewNoText, DialogLanguage());
    case Last:
        return stampText(error.Record.LastStamp);
    case First:
        return stampText(error.Record.FirstStamp);
    case Cleared:
        return error.Record.Cleared ? QString::number(*error.Record.Cleared)
                                    : QtText(TextId::HistoryEndUnknown, DialogLanguage());
    case InAMinute:
        return error.Record.Chattering > 0 ? QString::number(error.Record.Chattering) : QString();
    case Type:
        return ToQString(EventTypeName(error.Record.EventType));
    default:
        return QString::number(NumberOf(record, column).value_or(0), 'f', 0);
    }
}

std::optional<double> ErrorModel::NumberOf(std::size_t record, int column) const {
    const ErrorRecord& error = ErrorOf(record);
    using enum ErrorColumn;
    switch (static_cast<ErrorColumn>(column)) {
    case Count:
        return error.Entries;
    case Last:
        return SortNumber(error.LastStamp);
    case First:
        return SortNumber(error.FirstStamp);
    case Episodes:
        return error.Episodes;
    case InSessions:
        return error.Sessions;
    case Cleared:
        return error.Cleared ? static_cast<double>(*error.Cleared) : -1;
    case InAMinute:
        return error.Chattering;
    case Type:
        return error.EventType;
    default:
        return std::nullopt;
    }
}
