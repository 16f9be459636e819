// SPDX-License-Identifier: MIT
#include "document/ZipLogbook.h"

#include "base/AsciiCase.h"
#include "base/Paths.h"
#include "sources/ArchivedComments.h"

#include <map>

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

// True when the archive that is replaced is the one that this user knows, and somebody else has changed it
// since: another running copy of the program may have saved comments into it.
bool IsChangedByOthers(const LogbookState& state, const std::string& path,
                       const std::optional<FileStamp>& now) {
    std::error_code ignored;
    return state.CurrentArchiveStamp && now && *now != *state.CurrentArchiveStamp &&
           std::filesystem::equivalent(ToPath(path), ToPath(state.CurrentArchive), ignored);
}

enum class Agreement : std::uint8_t { Replace, Keep, Cancel };

// What is to become of the comments that would be lost.
Agreement AgreementOn(const ArchivedComments& lost, bool changedByOthers, UserInterface& user,
                      Language language) {
    using Kind = ArchivedComments::Kind;
    static constexpr UserInterface::AnswerButton Keep{TextId::ButtonKeepComments};
    static constexpr UserInterface::AnswerButton Replace{TextId::ButtonReplaceArchive, true};
    const auto text = [&](TextId id) { return std::string(Text(id, language)); };
    if (lost.What == Kind::None)
        return !changedByOthers || user.Confirm(text(TextId::AskReplaceChangedArchive)) ? Agreement::Replace
                                                                                        : Agreement::Cancel;
    std::string question = changedByOthers ? text(TextId::ArchiveWasChanged) + "\r\n\r\n" : "";
    question += TellArchivedComments(lost, language) + "\r\n\r\n";
    if (lost.What == Kind::OfThisLogbook) {
        const UserInterface::AnswerButton answers[] = {Keep, Replace};
        const std::optional<std::size_t> answer =
            user.Choose(question + text(TextId::AskKeepComments), answers);
        return !answer ? Agreement::Cancel : *answer == 0 ? Agreement::Keep : Agreement::Replace;
    }
    question +=
        text(lost.What == Kind::Unreadable ? TextId::AskReplaceUnreadable : TextId::AskReplaceComments);
    return user.Choose(question, std::span(&Replace, 1)) ? Agreement::Replace : Agreement::Cancel;
}

// Comments that the entries have until its end, and for good once they are saved.
class AddedComments {
  public:
    AddedComments(EntryTable& entries, const std::map<EntryNumber, std::string>& comments)
        : entries_(entries) {
        for (const auto& [number, comment] : comments) {
            before_[number] = entries.Comment(number);
            entries.SetComment(number, comment);
        }
    }
    ~AddedComments() {
        for (const auto& [number, comment] : before_)
            entries_.SetComment(number, comment);
    }
    AddedComments(const AddedComments&) = delete;
    AddedComments& operator=(const AddedComments&) = delete;

    // They stay; true when there are any.
    bool Stay() {
        const bool any = !before_.empty();
        before_.clear();
        return any;
    }

  private:
    EntryTable& entries_;
    std::map<EntryNumber, std::string> before_;
};

// Looks into what would be replaced, under a status text: a large logbook takes a while.
ArchivedComments LookInto(const std::string& path, const LogbookState& state, const ZipLogbookParts& parts,
                          UserInterface& user, Language language) {
    user.ShowStatus(TextId::StatusExtracting);
    ArchivedComments lost = CommentsLostWith(path,
                                             {.Entries = parts.Entries,
                                              .Changed = state.ChangedComments,
                                              .LogbookFile = state.CurrentLogbookFile,
                                              .FileCodePage = parts.FileCodePage},
                                             parts.Temp, language);
    user.RestoreStatus();
    return lost;
}

} // namespace

ZipOutcome ZipLogbook(LogbookState& state, const ZipLogbookParts& parts, UserInterface& user,
                      Language language, const PackingProgress& progress) {
    if (state.CurrentLogbookFile.empty())
        return ZipOutcome::Cancelled;
    const std::optional<std::string> path = AskForArchive(state, parts, user, language);
    if (!path)
        return ZipOutcome::Cancelled;
    std::error_code ignored;
    const std::optional<FileStamp> replaced = StampOf(*path, ignored);
    ArchiveContent content{.LogbookFile = state.CurrentLogbookFile,
                           .LogbookName = state.CurrentLogbookName,
                           .LogbookStamp = state.CurrentFileStamp,
                           .Filters = parts.Filters,
                           .Entries = parts.Entries,
                           .FileCodePage = parts.FileCodePage,
                           .Replaced = SeenFile{replaced}};
    const ArchivedComments lost =
        replaced ? LookInto(*path, state, parts, user, language) : ArchivedComments{};
    const Agreement agreement = AgreementOn(lost, IsChangedByOthers(state, *path, replaced), user, language);
    if (agreement == Agreement::Cancel || !AgreesToLosses(content, user, language) ||
        !AgreesToLogbook(content, user, language))
        return ZipOutcome::Cancelled;

    AddedComments kept(parts.Entries,
                       agreement == Agreement::Keep ? lost.Comments : std::map<EntryNumber, std::string>{});
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
    state.CurrentArchive = *path;
    state.CurrentArchiveStamp = StampOf(*path, ignored);
    state.CommentsEdited = false;
    state.ChangedComments.clear();
    return kept.Stay() ? ZipOutcome::SavedWithMore : ZipOutcome::Saved;
}
