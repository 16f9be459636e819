// SPDX-License-Identifier: MIT
#pragma once

#include "app/WaitPointer.h"
#include "document/LogbookDocument.h"

#include <functional>
#include <optional>
#include <string_view>
#include <system_error>

class LogbookModel;
class LogbookView;
class MainStatusBar;
class QPlainTextEdit;
class WindowProgress;
class WindowUser;

// The parts of the window that show a document: the list, the content pane and the status bar.
class WindowDocument : public DocumentView {
  public:
    struct Parts {
        LogbookModel& Model;
        LogbookView& List;
        QPlainTextEdit& Content;
        MainStatusBar& StatusBar;
        WindowProgress& Progress;
        WindowUser& User;
    };
    struct Events {
        std::function<void()> ReadingBegins; // what was shown is no more
        std::function<void(std::string_view name)> LogbookIsOpen;
        std::function<void(std::error_code)> CommentsAreSafe;
        std::function<void()> SelectedContentChanged;
        std::function<void()> FiltersInForceChanged;
        std::function<void(const NumbersOfOthers&)> NumbersOfOthersHide;
    };

    // Shows the document from now on. Document and parts outlive this.
    WindowDocument(LogbookDocument& document, Parts parts, Events events);

    void SetLanguage(Language language) { language_ = language; }

    UserInterface& User() override;
    ReadingProgress& Progress() override;
    Language DialogLanguage() const override { return language_; }
    void LogbookIsOpen(std::string_view name) override { events_.LogbookIsOpen(name); }
    void ReadingBegins() override;
    void LogbookIsRead(std::string_view title) override;
    void ReadingEnds() override { FilteringEnds(); }
    void MessageFollows() override;
    void FilteringBegins() override;
    void FilteringEnds() override;
    void FilterProgress(double percent) override;
    void CommentsFailed(const std::string& name, const CommentsFileResult& result) override;
    void FilteringFailed() override;
    void ReadingFailed(std::int16_t loadState) override;
    void FiltersInForceChanged() override { events_.FiltersInForceChanged(); }
    void NumbersOfOthersHide(const NumbersOfOthers& numbers) override {
        events_.NumbersOfOthersHide(numbers);
    }
    void ShowCounts() override;
    void ChangeRows(const std::function<void()>& change) override;
    std::optional<EntryNumber> SelectedEntry() const override;
    void SelectRow(std::size_t row) override;
    void PackingProgress(double percent) override;
    void CommentsAreChanged() override;
    void CommentsAreSafe(std::error_code error) override { events_.CommentsAreSafe(error); }

  private:
    const LogbookDocument& document_;
    Parts parts_;
    Events events_;
    Language language_;
    std::optional<WaitPointer> wait_;
};
