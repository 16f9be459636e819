// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/DialogTest.h"
#include "dialogs/frmLogbookSettings.h"
#include "filter/FilterStorage.h"
#include "filter/FilterText.h"

#include <memory>

// What tests of the filter list share: the dialog over stored filters.
class LogbookSettingsTest : public DialogTest {
  protected:
    void BeginWithoutSettings() {
        StartAfresh();
        Applied = 0;
        OnApply = {};
        Dialog.reset();
        Context.Labels = {};
        Context.DialogLanguage = {Language::English};
    }

    // A new dialog, shown, in this language.
    void Open(Language language = {}) {
        Context.DialogLanguage = language;
        Context.Labels.SetLanguage(language);
        Dialog = std::make_unique<frmLogbookSettings>(Context, [this] {
            ++Applied;
            if (OnApply)
                OnApply();
        });
        Dialog->setModal(true);
        Dialog->show();
    }

    void StoreFilters(const QStringList& filters) {
        FilterLists lists;
        for (const QString& filter : filters)
            lists.Filters.push_back(Filter(filter.toUtf8()));
        lists.StringFilters = DefaultStringFilters({});
        SaveFilters(Settings, lists, "");
    }

    QStringList StoredFilters() const {
        QStringList filters;
        const int count = Settings.ReadFilterSettingLong("FilterCount", 0);
        for (int i = 1; i <= count; ++i)
            filters << QString::fromStdString(
                Settings.ReadFilterSettingString("Filter" + std::to_string(i), "(none)"));
        return filters;
    }

    static FilterDefinition Filter(const char* text) {
        FilterDefinition filter;
        ParseFilter(text, filter);
        return filter;
    }

    QTreeWidget& List() const { return *Find<QTreeWidget>(*Dialog, "lvFilter"); }

    QList<bool> Checks() const {
        QList<bool> checks;
        for (int row = 0; row < List().topLevelItemCount(); ++row)
            checks << (List().topLevelItem(row)->checkState(0) == Qt::Checked);
        return checks;
    }

    QStringList ActionTexts() const {
        QStringList texts;
        for (int row = 0; row < List().topLevelItemCount(); ++row)
            texts << List().topLevelItem(row)->data(0, Qt::AccessibleTextRole).toString();
        return texts;
    }

    FilterDialogContext Context{Settings, CodePage(), {}, {}, {}};
    std::unique_ptr<frmLogbookSettings> Dialog;
    std::function<void()> OnApply;
    int Applied = 0;
};
