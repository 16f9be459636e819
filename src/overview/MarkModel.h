// SPDX-License-Identifier: MIT
#pragma once

#include "overview/HistoryModel.h"

#include "logbook/EntrySet.h"
#include "logbook/EntryStamps.h"

// The entries of a logbook that have a comment or are highlighted, in the order of the logbook.
class MarkModel : public HistoryModel {
    Q_OBJECT

  public:
    // More are not shown: a filter may highlight millions.
    static constexpr std::size_t MostShown = 100'000;

    explicit MarkModel(QObject* parent);

    // The sets are of the table's entries. The table must outlive its being shown; without one nothing is
    // shown.
    void ShowMarks(const EntryTable* entries, const EntrySet& commented, const EntrySet& highlighted);

    EntryNumber EntryOf(std::size_t record) const { return marked_[record]; }

    // "The first 100000 of 250000" when not all are shown; otherwise "".
    QString Remark() const;

  protected:
    QString CellOf(std::size_t record, int column) const override;
    std::optional<double> NumberOf(std::size_t record, int column) const override;

  private:
    const EntryTable* entries_ = nullptr;
    std::optional<EntryStamps> stamps_;
    std::vector<EntryNumber> marked_;
    EntrySet highlighted_;
    std::size_t count_ = 0; // also those that are not shown
};
