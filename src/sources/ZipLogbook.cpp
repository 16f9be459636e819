// SPDX-License-Identifier: MIT
#include "sources/ZipLogbook.h"

#include "logbook/AsciiCase.h"
#include "logbook/modUtil.h"

namespace {

constexpr std::string_view ArchiveExtension = ".qorvix";

// As it is seen from any folder.
std::string Absolute(const std::string& path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(ToPath(path), error);
    return error ? path : absolute.string();
}

// The archive that the user names. The name that is proposed is that of the logbook.
std::optional<std::string> AskForArchive(const LogbookState& state, const ZipLogbookParts& parts,
                                         UserInterface& user, Language language) {
    std::string logbookFolder;
    std::string fileName;
    SplitPath(Absolute(state.CurrentLogbookFile), logbookFolder, fileName);
    const bool isFirst = state.InitZipArchiveDir == parts.ProgramFolder;
    const bool stays = !LiesIn(ToPath(logbookFolder), parts.Temp.Path());
    std::optional<std::string> path =
        user.AskFileToSave({.Title = TextId::SaveArchiveTitle,
                            .Filters = TextId::SaveArchiveFilter,
                            .DefaultExtension = std::string(ArchiveExtension.substr(1)),
                            .Folder = isFirst && stays ? logbookFolder : state.InitZipArchiveDir,
                            .Name = ChangeExtension(fileName, ArchiveExtension)});
    if (!path || path->empty())
        return std::nullopt;
    // An archive is known by its extension; a dialog leaves a name with any "." in it as it was typed.
    if (LowerCase(*path).ends_with(ArchiveExtension))
        return path;
    path->append(ArchiveExtension);
    if (FileExists(*path) && !user.Confirm(*path + std::string(Text(TextId::AskReplaceFile, language))))
        return std::nullopt;
    return path;
}

// True when nothing is lost, or the user wants the archive all the same.
bool AgreesToLosses(const ArchiveContent& content, UserInterface& user, Language language) {
    const std::string losses = TextsThatLose(content, language);
    return losses.empty() ||
           user.Confirm(losses + "\r\n\r\n" + std::string(Text(TextId::AskArchiveAll, language)));
}

// True when the logbook file is as it was read, or the user wants it as it is now, which the content then
// says. That it is gone is found out by saving.
bool AgreesToLogbook(ArchiveContent& content, UserInterface& user, Language language) {
    std::error_code ignored;
    const std::optional<FileStamp> now = StampOf(content.LogbookFile, ignored);
    if (!now || !content.LogbookStamp || *now == *content.LogbookStamp)
        return true;
    content.LogbookStamp = now;
    return user.Confirm(Text(TextId::AskArchiveChangedLogbook, language));
}

// True when what is replaced is the archive as this user knows it, or the user wants it replaced all the
// same: another running copy of the program may have saved comments into it.
bool AgreesToArchive(const LogbookState& state, const std::string& path, UserInterface& user,
                     Language language) {
    std::error_code ignored;
    if (!state.CurrentArchiveStamp ||
        !std::filesystem::equivalent(ToPath(path), ToPath(state.CurrentArchive), ignored))
        return true;
    const std::optional<FileStamp> now = StampOf(path, ignored);
    return !now || *now == *state.CurrentArchiveStamp ||
           user.Confirm(Text(TextId::AskReplaceChangedArchive, language));
}

} // namespace

ZipOutcome ZipLogbook(LogbookState& state, const ZipLogbookParts& parts, UserInterface& user,
                      Language language, const PackingProgress& progress) {
    if (state.CurrentLogbookFile.empty())
        return ZipOutcome::Cancelled;
    const std::optional<std::string> path = AskForArchive(state, parts, user, language);
    if (!path)
        return ZipOutcome::Cancelled;
    ArchiveContent content{.LogbookFile = state.CurrentLogbookFile,
                           .LogbookName = state.CurrentLogbookName,
                           .LogbookStamp = state.CurrentFileStamp,
                           .Filters = parts.Filters,
                           .Entries = parts.Entries,
                           .FileCodePage = parts.FileCodePage};
    if (!AgreesToArchive(state, *path, user, language) || !AgreesToLosses(content, user, language) ||
        !AgreesToLogbook(content, user, language))
        return ZipOutcome::Cancelled;

    user.ShowStatus(TextId::StatusZipping);
    const std::string reason = SaveLogbookArchive(*path, content, parts.Temp, language, progress);
    user.RestoreStatus();
    if (!reason.empty()) {
        user.ShowMessage(std::string(Text(TextId::ArchiveNotSaved, language)) + " (" + *path + ": " + reason +
                             ")",
                         UserInterface::MessageIcon::Exclamation);
        return ZipOutcome::Failed;
    }
    std::string fileName;
    SplitPath(*path, state.InitZipArchiveDir, fileName);
    parts.Settings.WriteLogbookSetting("InitZipArchiveDir", state.InitZipArchiveDir, SettingType::Text);
    std::error_code ignored;
    state.CurrentArchive = *path;
    state.CurrentArchiveStamp = StampOf(*path, ignored);
    state.CommentsEdited = false;
    return ZipOutcome::Saved;
}
