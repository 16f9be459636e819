// SPDX-License-Identifier: MIT
#include "document/ExportList.h"

#include "base/AtomicFile.h"
#include "base/Paths.h"
#include "rows/ListPlace.h"
#include "rows/RowWriter.h"
#include "settings/ReasonText.h"

#include <array>

namespace {

constexpr std::string_view ExportFolderSetting = "InitExportDir";

// The types of the question, in the order of its text; each is the form's name, too.
constexpr std::array<std::string_view, 3> Types{"csv", "jsonl", "html"};

// The folder of the logbook or of its archive, with the last separator.
std::string FolderOfLogbook(const LogbookState& state) {
    const std::string& source =
        state.CurrentArchive.empty() ? state.CurrentLogbookFile : state.CurrentArchive;
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(ToPath(source), error);
    std::string folder;
    std::string fileName;
    SplitPath(error ? source : PathText(absolute), folder, fileName);
    return folder;
}

std::string NameOfLogbook(const LogbookState& state) {
    std::string folder;
    std::string fileName;
    SplitPath(state.CurrentLogbookFile, folder, fileName);
    return ChangeExtension(fileName, "");
}

// Spreadsheets with German settings expect semicolons, as the comma is in their numbers. All need the mark to
// take a file for UTF-8.
RowForm FormOf(std::size_t type, const LogbookState& state, Language language) {
    RowForm form{.Format = std::string(Types[type]),
                 .Separator = language.IsGerman() ? ';' : ',',
                 .ByteOrderMark = true};
    form.Words = language;
    form.Title = NameOfLogbook(state);
    return form;
}

} // namespace

ExportOutcome ExportList(const ListToExport& list, UserInterface& user, Language language,
                         const std::function<bool(double percent)>& goesOn) {
    const LogbookState& state = list.State;
    if (state.CurrentLogbookFile.empty())
        return ExportOutcome::Cancelled;
    const std::optional<UserInterface::TypedFile> file = user.AskTypedFileToSave(
        {.Title = TextId::ExportListTitle,
         .Filters = TextId::ExportListFilter,
         .DefaultExtension = "",
         .Folder = list.Settings.ReadLogbookSettingString(ExportFolderSetting, FolderOfLogbook(state)),
         .Name = NameOfLogbook(state).append(".").append(Types.front())},
        Types);
    if (!file)
        return ExportOutcome::Cancelled;
    const auto fail = [&](std::string_view reason) {
        user.ShowMessage(std::string(Text(TextId::ListNotExported, language))
                             .append(" (")
                             .append(file->Path)
                             .append(": ")
                             .append(reason)
                             .append(")"),
                         UserInterface::MessageIcon::Exclamation);
        return ExportOutcome::Failed;
    };
    const std::array<std::string, 2> sources{state.CurrentLogbookFile, state.CurrentArchive};
    if (const std::optional<TextId> refusal = RefusalOfListPlace(file->Path, sources))
        return fail(Text(*refusal, language));

    bool isEnded = false;
    AtomicFile written(file->Path);
    WriteRows(list.Entries, list.Rows, FormOf(file->Type, state, language), written.Stream(),
              [&](double percent) {
                  isEnded = !goesOn(percent);
                  return !isEnded;
              });
    if (isEnded)
        return ExportOutcome::Ended;
    if (const std::error_code error = written.Commit())
        return fail(ReasonText(error, language));
    std::string folder;
    std::string fileName;
    SplitPath(file->Path, folder, fileName);
    list.Settings.WriteLogbookSetting(ExportFolderSetting, folder, SettingType::Text);
    return ExportOutcome::Exported;
}
