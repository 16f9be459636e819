// SPDX-License-Identifier: MIT
#include "cli/ErrorsCommand.h"

#include "cli/HistoryTexts.h"
#include "cli/Options.h"
#include "cli/PlainTable.h"
#include "cli/PrintedHistory.h"
#include "cli/RecordWriter.h"
#include "history/ErrorStatistics.h"
#include "history/ErrorTexts.h"
#include "settings/Texts.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cmath>
#include <span>

namespace {

using ColumnSide = PlainTable::Side;

constexpr std::size_t ErrorsWidth = 100; // of the text forms, in characters

// A rate per hour says nothing about a shorter time.
constexpr std::chrono::minutes LeastRecordedTime{15};

Record PerRecordedHour(std::uint32_t entries, Session::Duration recorded) {
    if (recorded < LeastRecordedTime)
        return {};
    const double hours = static_cast<double>(recorded.count()) / 3'600'000.0;
    return std::round(entries / hours * 1000.0) / 1000.0;
}

const Record ErrorNames = {{"key", 0},        {"code", 0},        {"example", 0},    {"type", 0},
                           {"entries", 0},    {"episodes", 0},    {"sessions", 0},   {"first", 0},
                           {"last", 0},       {"first_index", 0}, {"last_index", 0}, {"per_recorded_hour", 0},
                           {"message_en", 0}, {"message_de", 0},  {"chattering", 0}, {"cleared", 0}};

// The errors of a document with the control's texts, and the words for them.
class ErrorList {
  public:
    ErrorList(const TerminalDocument& document, const ErrorChoice& choice, const ErrorsOptions& options)
        : entries_(document.Entries()), options_(options) {
        const std::vector<Session> sessions = SessionsOf(entries_, document.Book().Starts);
        recorded_ = RecordedTime(sessions);
        errors_ = ErrorsOf(entries_, sessions, ReadErrorKeys(options), choice);
        printed_ = options.Top == 0 ? errors_.size() : std::min(options.Top, errors_.size());
        // The text form counts the errors without a text.
        const std::size_t looked = options.Form.Format == "text" ? errors_.size() : printed_;
        const std::vector<std::string> folders = LanguageFolders(options.LanguageFolder);
        for (const ErrorRecord& error : std::span(errors_).first(looked))
            texts_.push_back(TextsOf(error, entries_, folders));
    }

    void Write(const RowForm& form, std::ostream& stream) const {
        if (form.Format == "text")
            return WriteText(stream);
        WriteRecords(
            printed_, [this](std::size_t place) { return RecordOf(place); }, ErrorNames, form, stream);
    }

  private:
    std::string Say(TextId id) const { return std::string(Text(id, options_.MessageLanguage)); }

    Record RecordOf(std::size_t place) const {
        const ErrorRecord& error = errors_[place];
        Record record;
        record["key"] = error.Key;
        record["code"] = error.Form == ErrorKeys::Form::Code;
        record["example"] = entries_.Data(error.First);
        record["type"] = error.EventType;
        record["entries"] = error.Entries;
        record["episodes"] = error.Episodes;
        record["sessions"] = error.Sessions;
        record["first"] = IsoOrNull(error.FirstStamp);
        record["last"] = IsoOrNull(error.LastStamp);
        record["first_index"] = error.First;
        record["last_index"] = error.Last;
        record["per_recorded_hour"] = PerRecordedHour(error.Entries, recorded_);
        record["message_en"] = TextOrNull(FirstLine(texts_[place].English));
        record["message_de"] = TextOrNull(FirstLine(texts_[place].German));
        record["chattering"] = error.Chattering;
        record["cleared"] = error.Cleared ? Record(*error.Cleared) : Record();
        return record;
    }

    void WriteText(std::ostream& stream) const {
        PlainTable table({{Say(TextId::HistoryEntries), 7, 9, ColumnSide::Right},
                          {"", BarWidth, BarWidth},
                          {Say(TextId::HistoryEpisodes), 5, 9, ColumnSide::Right},
                          {Say(TextId::HistoryCleared), 7, 14, ColumnSide::Right},
                          {Say(TextId::HistoryChatter), 5, 9, ColumnSide::Right},
                          {Say(TextId::HistoryLast), 16, 16},
                          {Say(TextId::HistoryErrorAndText), 0, ErrorsWidth}});
        for (std::size_t i = 0; i < printed_; ++i)
            table.AddLine(TextLine(i));
        table.Write(stream, ErrorsWidth);
        const auto without = [&](std::optional<std::string> ErrorTexts::*language) {
            const auto count = std::count_if(texts_.begin(), texts_.end(), [&](const ErrorTexts& texts) {
                return !FirstLine(texts.*language);
            });
            return std::to_string(count);
        };
        stream << without(&ErrorTexts::English) << Say(TextId::HistoryOf) << errors_.size()
               << Say(TextId::HistoryWithoutEnglish) << without(&ErrorTexts::German)
               << Say(TextId::HistoryWithoutGerman) << '\n';
    }

    std::vector<std::string> TextLine(std::size_t place) const {
        const ErrorRecord& error = errors_[place];
        const std::size_t most = errors_.front().Entries;
        const std::size_t bar = std::max<std::size_t>(1, BarWidth * error.Entries / most);
        const std::optional<std::string> text =
            FirstLine(options_.MessageLanguage.IsGerman() ? texts_[place].German : texts_[place].English);
        return {std::to_string(error.Entries),
                std::string(bar, '#'),
                std::to_string(error.Episodes),
                error.Cleared ? std::to_string(*error.Cleared) : Say(TextId::HistoryEndUnknown),
                error.Chattering != 0 ? std::to_string(error.Chattering) : std::string(),
                error.LastStamp ? ReadableText(*error.LastStamp).substr(0, 16)
                                : Say(TextId::HistoryUnreadable),
                error.Key + (text ? ' ' + *text : std::string())};
    }

    static constexpr std::size_t BarWidth = 8;

    const EntryTable& entries_;
    const ErrorsOptions& options_;
    Session::Duration recorded_{};
    std::vector<ErrorRecord> errors_;
    std::vector<ErrorTexts> texts_; // of the first errors
    std::size_t printed_ = 0;
};

CLI::Validator AtLeastOne() {
    return CLI::Validator(
        [](const std::string& text) {
            const bool isNumber = !text.empty() &&
                                  text.find_first_not_of("0123456789") == std::string::npos &&
                                  text.find_first_not_of('0') != std::string::npos;
            return std::string(isNumber ? "" : "the number must be at least 1");
        },
        "", "");
}

} // namespace

CLI::App* AddErrorsCommand(CLI::App& app, ErrorsOptions& options) {
    CLI::App* command =
        app.add_subcommand("errors", "Print which errors a logbook records, the most frequent first");
    AddHistoryOptions(*command, options);
    command->add_option("--top", options.Top, "Only so many of the most frequent, at least 1")
        ->check(AtLeastOne());
    command->add_option("--type", options.Type, "error (with fatal errors), warning, or all: both")
        ->check(CLI::IsMember({"error", "warning", "all"}))
        ->capture_default_str();
    command->add_option("--filters", options.Filters, "Only entries that this filter file lets through")
        ->check(NameIsGiven());
    return command;
}

int RunErrors(const ErrorsOptions& options) {
    return PrintHistory(options, options.Filters, [&](const TerminalDocument& document) {
        ErrorChoice choice{.Errors = options.Type != "warning", .Warnings = options.Type != "error"};
        if (!options.Filters.empty())
            choice.Entries = ShownEntries(document.Rows(), document.Entries().Count());
        return ErrorList(document, choice, options);
    });
}
