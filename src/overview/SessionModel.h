// SPDX-License-Identifier: MIT
#pragma once

#include "overview/HistoryModel.h"

#include "history/LogbookHistory.h"

// The sessions of a logbook.
class SessionModel : public HistoryModel {
    Q_OBJECT

  public:
    explicit SessionModel(QObject* parent);

    // A complete history and the table that it is of, or nothing. Both must outlive their being shown.
    void ShowHistory(const LogbookHistory* history, const EntryTable* entries);

    // The first entry of a session; of one without entries the next one. Nothing when there is none.
    std::optional<EntryNumber> FirstEntryOf(std::size_t record) const;

  protected:
    QString CellOf(std::size_t record, int column) const override;
    std::optional<double> NumberOf(std::size_t record, int column) const override;

  private:
    const LogbookHistory* history_ = nullptr;
    const EntryTable* entries_ = nullptr;
};
