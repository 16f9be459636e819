// SPDX-License-Identifier: MIT
#include "cli/LookupAll.h"

#include "cli/HistoryTexts.h"
#include "cli/PlainTable.h"
#include "cli/PrintedHistory.h"
#include "cli/RecordWriter.h"
#include "history/ErrorStatistics.h"
#include "history/ErrorTexts.h"
#include "settings/Texts.h"

#include <algorithm>

namespace {

constexpr std::size_t CodesWidth = 100; // of the text form, in characters

const Record CodeNames = {{"key", 0}, {"entries", 0}, {"text_en", 0}, {"text_de", 0}, {"missing", 0}};

// The codes of a document in the order of their names, with the control's whole texts.
class CodeList {
  public:
    CodeList(const TerminalDocument& document, const HistoryOptions& options)
        : language_(options.MessageLanguage) {
        const EntryTable& entries = document.Entries();
        const std::vector<std::string> folders = LanguageFolders(options.LanguageFolder);
        for (ErrorRecord& error : ErrorsOf(entries, SessionsOf(entries, document.Book().Starts),
                                           ReadErrorKeys(options), {.Warnings = true}))
            if (error.Form == ErrorKeys::Form::Code) {
                ErrorTexts texts = TextsOf(error, entries, folders);
                codes_.push_back({std::move(error), std::move(texts)});
            }
        std::sort(codes_.begin(), codes_.end(),
                  [](const Code& a, const Code& b) { return a.Error.Key < b.Error.Key; });
    }

    void Write(const RowForm& form, std::ostream& stream) const {
        if (form.Format == "text")
            return WriteText(stream);
        const auto record = [this](std::size_t place) -> Record {
            const Code& code = codes_[place];
            return {{"key", code.Error.Key},
                    {"entries", code.Error.Entries},
                    {"text_en", TextOrNull(code.Texts.English)},
                    {"text_de", TextOrNull(code.Texts.German)},
                    {"missing", Missing(code.Texts)}};
        };
        WriteRecords(codes_.size(), record, CodeNames, form, stream);
    }

  private:
    struct Code {
        ErrorRecord Error;
        ErrorTexts Texts;
    };

    static std::string Missing(const ErrorTexts& texts) {
        std::string missing = texts.English ? "" : "en";
        if (!texts.German)
            missing += missing.empty() ? "de" : " de";
        return missing;
    }

    void WriteText(std::ostream& stream) const {
        const auto say = [&](TextId id) { return std::string(Text(id, language_)); };
        PlainTable table({{say(TextId::HistoryCode), 9, 17},
                          {say(TextId::HistoryEntries), 7, 9, PlainTable::Side::Right},
                          {say(TextId::HistoryMissing), 5, 5},
                          {say(TextId::HistoryEnglish), 12, 32},
                          {say(TextId::HistoryGerman), 0, CodesWidth}});
        for (const Code& code : codes_)
            table.AddLine({code.Error.Key, std::to_string(code.Error.Entries), Missing(code.Texts),
                           FirstLine(code.Texts.English).value_or("-"),
                           FirstLine(code.Texts.German).value_or("-")});
        table.Write(stream, CodesWidth);
    }

    Language language_;
    std::vector<Code> codes_;
};

} // namespace

int RunLookupAll(const HistoryOptions& options) {
    return PrintHistory(options, {},
                        [&](const TerminalDocument& document) { return CodeList(document, options); });
}
