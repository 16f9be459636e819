// SPDX-License-Identifier: MIT
#include "document/ZipLogbook.h"

#include "base/Paths.h"
#include "sources/ArchivedComments.h"

#include <map>
#include <utility>

namespace {

// As it is seen from any folder.
std::string Absolute(const std::string& path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(ToPath(path), error);
    return error ? path : PathText(absolute);
}

// Whether the logbook file goes in: it is as it was read, or wanted as it is now, which the content then
// says. That it is gone is found out by saving.
bool AgreesToLogbook(ArchiveContent& content, ArchiveDecisions& decisions) {
    std::error_code ignored;
    const std::optional<FileStamp> now = StampOf(content.LogbookFile, ignored);
    if (!now || !content.LogbookStamp || *now == *content.LogbookStamp)
        return true;
    content.LogbookStamp = now;
    return decisions.AgreesToChangedLogbook();
}

bool AgreesToLosses(const ArchiveContent& content, ArchiveDecisions& decisions, Language language) {
    const std::string losses = TextsThatLose(content, language);
    return losses.empty() || decisions.AgreesToLosses(losses);
}

// The archive that is wanted. The name that is proposed is that of the logbook.
std::optional<std::string> WantedArchive(const LogbookState& state, const ZipLogbookParts& parts,
                                         ArchiveDecisions& decisions) {
    std::string logbookFolder;
    std::string fileName;
    SplitPath(Absolute(state.CurrentLogbookFile), logbookFolder, fileName);
    const bool isFirst = state.InitZipArchiveDir == parts.ProgramFolder;
    const bool stays = !LiesIn(ToPath(logbookFolder), parts.Temp.Path());
    return decisions.Archive(isFirst && stays ? logbookFolder : state.InitZipArchiveDir,
                             ChangeExtension(fileName, ArchiveExtension));
}

// True when the archive that is replaced is the one that this user knows, and somebody else has changed it
// since: another running copy of the program may have saved comments into it.
bool IsChangedByOthers(const LogbookState& state, const std::string& path,
                       const std::optional<FileStamp>& now) {
    std::error_code ignored;
    return state.CurrentArchiveStamp && now && *now != *state.CurrentArchiveStamp &&
           std::filesystem::equivalent(ToPath(path), ToPath(state.CurrentArchive), ignored);
}

// Comments that the entries have until its end, and for good once they are saved.
class AddedComments {
  public:
    AddedComments(EntryTable& entries, const std::map<EntryNumber, std::string>& comments)
        : entries_(entries), any_(!comments.empty()) {
        if (!any_)
            return;
        others_ = entries.Comments();
        for (const auto& [number, comment] : comments)
            others_.insert_or_assign(number, comment);
        entries_.SwapComments(others_);
    }
    // May run because there is no memory, and needs none.
    ~AddedComments() {
        if (any_)
            entries_.SwapComments(others_);
    }
    AddedComments(const AddedComments&) = delete;
    AddedComments& operator=(const AddedComments&) = delete;

    // They stay; true when there are any.
    bool Stay() { return std::exchange(any_, false); }

  private:
    EntryTable& entries_;
    std::map<EntryNumber, std::string> others_; // than the entries have now
    bool any_;
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

ZipOutcome ZipLogbook(LogbookState& state, const ZipLogbookParts& parts, ArchiveDecisions& decisions,
                      UserInterface& user, Language language, const PackingProgress& progress) {
    using OldComments = ArchiveDecisions::OldComments;
    if (state.CurrentLogbookFile.empty())
        return ZipOutcome::Cancelled;
    const std::optional<std::string> path = WantedArchive(state, parts, decisions);
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
    const OldComments oldComments = decisions.DecideOn(lost, IsChangedByOthers(state, *path, replaced));
    if (oldComments == OldComments::Cancel || !AgreesToLosses(content, decisions, language) ||
        !AgreesToLogbook(content, decisions))
        return ZipOutcome::Cancelled;

    AddedComments kept(parts.Entries, oldComments == OldComments::Keep
                                          ? lost.Comments
                                          : std::map<EntryNumber, std::string>{});
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
