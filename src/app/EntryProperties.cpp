// SPDX-License-Identifier: MIT
#include "app/EntryProperties.h"

#include "dialogs/frmLogbookIdent.h"
#include "document/LogbookDocument.h"
#include "eventinfo/iZEKEventInfo.h"
#include "list/LogbookModel.h"
#include "list/MultiLineText.h"
#include "list/QtText.h"

namespace {

LogbookIdent IdentOf(const EntryTable& entries, const LogbookModel& model, int row) {
    const auto cell = [&](LogbookColumn column) {
        return model.index(row, static_cast<int>(column)).data().toString();
    };
    const EntryNumber entry = model.Rows()[static_cast<std::size_t>(row)].Entry;
    return {cell(LogbookColumn::Event),  ToQString(BeginningWithLineBreaks(entries.Data(entry))),
            cell(LogbookColumn::Sender), cell(LogbookColumn::Name),
            cell(LogbookColumn::Time),   cell(LogbookColumn::Index),
            ToQString(model.Tag(row)),   WithLineBreaks(cell(LogbookColumn::Comment))};
}

} // namespace

void ShowEntryDialogs(const RowRanges& rows, LogbookDocument& document, LogbookModel& model,
                      Language language, QWidget* parent, const EntryPropertiesEvents& events) {
    frmLogbookIdent dialog(
        language,
        [&](const QString& data) {
            const ProposedComment proposed = AutoFillComment(data.toStdString(), language, LanguageFolders());
            events.LookedUp(proposed.Mistake);
            return ToQString(proposed.Text.value_or(""));
        },
        parent);
    for (const RowRange& range : rows) {
        for (std::size_t row = range.First; row <= range.Last; ++row) {
            const EntryNumber entry = model.Rows()[row].Entry;
            dialog.ShowEntry(IdentOf(document.Entries(), model, static_cast<int>(row)));
            if (dialog.WasClosed())
                return;
            const QString& comment = dialog.Comment();
            if (comment.isEmpty())
                continue;
            const std::string text =
                comment == frmLogbookIdent::ClearMark ? std::string() : OnOneLine(comment).toStdString();
            document.ChangeComment(entry, text);
            model.ShowComment(static_cast<int>(row));
            events.CommentChanged(static_cast<int>(row));
        }
    }
}
