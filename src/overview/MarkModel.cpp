// SPDX-License-Identifier: MIT
#include "overview/MarkModel.h"

#include "list/QtText.h"
#include "overview/SortNumbers.h"
#include "rows/LogbookColumns.h"

namespace {

enum class MarkColumn { Index, Time, Event, Marks, Comment, Data };

constexpr HistoryColumn MarkColumns[] = {
    {TextId::ColumnIndex, HistoryColumn::Right},
    {TextId::ColumnTime},
    {TextId::ColumnEvent},
    {TextId::OverviewMark},
    {TextId::ColumnComment},
    {TextId::ColumnData},
};

} // namespace

MarkModel::MarkModel(QObject* parent) : HistoryModel(MarkColumns, parent) {}

void MarkModel::ShowMarks(const EntryTable* entries, const EntrySet& commented, const EntrySet& highlighted) {
    entries_ = entries;
    highlighted_ = highlighted;
    stamps_.reset();
    marked_.clear();
    count_ = 0;
    if (entries != nullptr) {
        stamps_.emplace(*entries);
        EntrySet both = commented;
        both.AddAll(highlighted);
        count_ = both.Count(0, both.End());
        for (std::optional<EntryNumber> entry = both.FirstFrom(0); entry && marked_.size() < MostShown;
             entry = both.FirstFrom(*entry + 1))
            marked_.push_back(*entry);
    }
    ShowRecords(marked_.size());
}

QString MarkModel::Remark() const {
    if (count_ <= marked_.size())
        return {};
    return QtText(TextId::OverviewFirstMarks, DialogLanguage()) + QString::number(marked_.size()) +
           QtText(TextId::HistoryOf, DialogLanguage()) + QString::number(count_);
}

QString MarkModel::CellOf(std::size_t record, int column) const {
    const EntryNumber entry = marked_[record];
    const auto cell = [&](LogbookColumn of) { return ToQString(CellText(*entries_, entry, of)); };
    using enum MarkColumn;
    switch (static_cast<MarkColumn>(column)) {
    case Index:
        return QString::number(entry);
    case Time:
        return cell(LogbookColumn::Time);
    case Event:
        return cell(LogbookColumn::Event);
    case Marks: {
        QStringList marks;
        if (!entries_->Comment(entry).empty())
            marks += QtText(TextId::ColumnComment, DialogLanguage());
        if (highlighted_.Contains(entry))
            marks += QtText(TextId::OverviewHighlighted, DialogLanguage());
        return marks.join(", ");
    }
    case Comment:
        return cell(LogbookColumn::Comment);
    case Data:
        return cell(LogbookColumn::Data);
    }
    return {};
}

std::optional<double> MarkModel::NumberOf(std::size_t record, int column) const {
    switch (static_cast<MarkColumn>(column)) {
    case MarkColumn::Index:
        return marked_[record];
    case MarkColumn::Time:
        return SortNumber((*stamps_)[marked_[record]]);
    default:
        return std::nullopt;
    }
}
