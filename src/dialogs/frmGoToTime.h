// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/FittedDialog.h"
#include "rows/WantedTime.h"
#include "settings/Language.h"

#include <optional>
#include <vector>

class DialogList;
class FieldNote;
class QLabel;
class QLineEdit;
class QPushButton;

// Asks for a time: a field for it, and the days of the logbook. The selected day counts where the field names
// none, and its beginning where the field is empty.
class frmGoToTime : public FittedDialog {
    Q_OBJECT

  public:
    // `day` is selected at first, if the logbook has it; otherwise the last one is.
    frmGoToTime(Language language, std::vector<LogbookDay> days, std::optional<std::chrono::sys_days> day,
                QWidget* parent = nullptr);

    // The time that the person wants; nothing after Cancel.
    std::optional<Stamp> Time() const;

    void accept() override;

  private:
    void LoadLanguage();
    void ShowDays(std::optional<std::chrono::sys_days> day);
    std::optional<Stamp> Entered() const;
    void ShowNote();

    Language language_;
    std::vector<LogbookDay> days_;
    QLabel* lblTime;
    QLineEdit* tbTime;
    FieldNote* lblNote;
    QLabel* lblDays;
    DialogList* lvDays;
    QPushButton* cmdOK;
};
