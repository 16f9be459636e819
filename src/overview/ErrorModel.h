// SPDX-License-Identifier: MIT
#pragma once

#include "overview/HistoryModel.h"

#include "history/LogbookHistory.h"

// The errors and warnings of a logbook, with the control's texts in both languages.
class ErrorModel : public HistoryModel {
    Q_OBJECT

  public:
    explicit ErrorModel(QObject* parent);

    // A complete history, or nothing. It must outlive its being shown.
    void ShowHistory(const LogbookHistory* history);

    const ErrorRecord& ErrorOf(std::size_t record) const { return history_->Errors()[record].Record; }

    // "2 of 17 keys have no text in English, 3 none in German"; "" without a history.
    QString MissingTexts() const;

  protected:
    QString CellOf(std::size_t record, int column) const override;
    std::optional<double> NumberOf(std::size_t record, int column) const override;

  private:
    const LogbookHistory* history_ = nullptr;
};
