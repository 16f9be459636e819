// SPDX-License-Identifier: MIT
#include "app/WindowDocument.h"

#include "app/MainStatusBar.h"
#include "app/WindowProgress.h"
#include "app/WindowUser.h"
#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "list/QtText.h"

#include <QPlainTextEdit>

#include <utility>

WindowDocument::WindowDocument(LogbookDocument& document, Parts parts, Events events)
    : document_(document), parts_(parts), events_(std::move(events)) {
    document.ShowIn(*this);
}

UserInterface& WindowDocument::User() { return parts_.User; }

ReadingProgress& WindowDocument::Progress() { return parts_.Progress; }

void WindowDocument::ReadingBegins() {
    events_.ReadingBegins();
    parts_.Content.clear();
    parts_.StatusBar.ClearCounts();
    FilteringBegins();
}

void WindowDocument::LogbookIsRead(std::string_view title) {
    parts_.StatusBar.ShowDescription(ToQString(title));
}

// A window behind a message cannot be closed, and what has closed it until now would be lost.
void WindowDocument::MessageFollows() { parts_.Progress.TakePendingEvents(); }

void WindowDocument::FilteringBegins() {
    parts_.StatusBar.ShowProgressBar();
    wait_.emplace();
}

void WindowDocument::FilteringEnds() {
    wait_.reset();
    parts_.StatusBar.HideProgressBar();
}

void WindowDocument::FilterProgress(double percent) { parts_.Progress.PaintValue(percent); }

void WindowDocument::CommentsFailed(const std::string& name, const CommentsFileResult& result) {
    parts_.User.ShowMessage(CommentsFileMessage(name, result, language_), UserInterface::MessageIcon::None);
}

void WindowDocument::ReadingFailed(std::int16_t loadState) {
    struct Row {
        std::int16_t Code;
        TextId Message;
        UserInterface::MessageIcon Icon;
    };
    static constexpr Row Messages[] = {
        {LoadStates::Corrupt, TextId::LogbookCorrupt, UserInterface::MessageIcon::Exclamation},
        {LoadStates::Opening, TextId::OpenFailed, UserInterface::MessageIcon::None},
        {LoadStates::Reading, TextId::ReadFailed, UserInterface::MessageIcon::None},
        {LoadStates::Filtering, TextId::FilterError, UserInterface::MessageIcon::None},
    };
    for (const Row& row : Messages)
        if (row.Code == loadState)
            parts_.User.ShowMessage(Text(row.Message, language_), row.Icon);
}

void WindowDocument::FilteringFailed() {
    parts_.User.ShowMessage(Text(TextId::FilterFailed, language_), QtText(TextId::FilterError, language_),
                            UserInterface::MessageIcon::Exclamation);
}

void WindowDocument::ShowCounts() {
    parts_.StatusBar.ShowLogbookStatus(static_cast<std::int64_t>(document_.Rows().size()),
                                       document_.Book().EntryCount, language_);
}

void WindowDocument::ChangeRows(const std::function<void()>& change) {
    parts_.Model.ChangeRows(change);
    parts_.List.ShowSortIndicator();
}

std::optional<EntryNumber> WindowDocument::SelectedEntry() const {
    const std::optional<int> row = parts_.List.SelectedRow();
    return row ? std::optional(document_.Rows()[static_cast<std::size_t>(*row)].Entry) : std::nullopt;
}

void WindowDocument::SelectRow(std::size_t row) { parts_.List.SelectAndShow(static_cast<int>(row)); }

// The bar is gone before a failure is shown.
void WindowDocument::PackingProgress(double percent) {
    if (percent == 0)
        parts_.StatusBar.HideProgressBar();
    else
        parts_.StatusBar.ShowProgressBar();
    parts_.Progress.PaintValue(percent);
}

void WindowDocument::CommentsAreChanged() {
    parts_.Model.ShowComments();
    if (!parts_.Content.document()->isEmpty())
        events_.SelectedContentChanged();
}
