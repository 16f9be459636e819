// SPDX-License-Identifier: MIT
#include "cli/StitchOutput.h"

#include "base/AtomicFile.h"
#include "base/Paths.h"
#include "base/StopRequest.h"
#include "base/Workplace.h"
#include "cli/Messages.h"
#include "cli/TerminalDocument.h"
#include "comments/Comments.h"
#include "settings/ReasonText.h"
#include "settings/Texts.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <set>

namespace {

// Fails with a message about a file.
bool FailFor(const std::string& file, const std::string& reason) {
    Fail(file + ": " + reason);
    return false;
}

bool FailFor(const std::string& file, const std::error_code& error, Language language) {
    return FailFor(file, ReasonText(error, language));
}

std::string Say(TextId id, const StitchInput& input) { return std::string(Text(id, input.MessageLanguage)); }

// Writes the logbook to a file that is not yet at its place, and carries the comments. `name` is that of the
// output.
bool Write(AtomicFile& file, const std::string& name, const StitchInput& input, StitchedResult& result,
           CarriedComments& carried) {
    if (file.Path().empty())
        return FailFor(name, file.Commit(), input.MessageLanguage);
    const StitchedLog log(input.Sources.Exports(), input.Plan);
    log.Write(file.Stream());
    if (!file.Stream().flush())
        return FailFor(name, file.Commit(), input.MessageLanguage);
    if (!input.Sources.AreUnchanged())
        return false;
    const std::string written = file.Path().string();
    result.Counts = CountEntries(log, written, input.Sources.Exports(), input.Plan);
    if (!input.Comments.empty())
        carried = CarryComments(log, written, input.Sources.Exports(), input.Comments);
    result.Unplaced = carried.Unplaced;
    return !StopRequest::IsMade();
}

// The comments file beside a logbook, and what it held before.
class CommentsBeside {
  public:
    CommentsBeside(const std::string& logbook, const StitchInput& input)
        : path_(ChangeExtension(logbook, ".cmt")), logbook_(logbook), input_(input) {}

    // Whether the file may be replaced, as far as that can be told without the new comments.
    bool MayBeReplaced() {
        std::error_code error;
        if (input_.Sources.Include(path_))
            return FailFor(path_, Say(TextId::StitchInPlaceOfSource, input_));
        isThere_ = std::filesystem::exists(std::filesystem::symlink_status(ToPath(path_), error));
        if (!isThere_)
            return true;
        if (!std::filesystem::exists(ToPath(logbook_), error))
            return FailFor(path_, Say(TextId::StitchCommentsWithoutLogbook, input_));
        const CommentsFileResult read =
            ReadCommentsFile(path_, input_.FileCodePage,
                             [&](std::int64_t entry, std::string text) { before_[entry] = std::move(text); });
        if (read.Result == CommentsFileResult::Outcome::Read)
            return true;
        const std::string message = CommentsFileMessage(path_, read, input_.MessageLanguage);
        if (read.Result == CommentsFileResult::Outcome::NoHeader)
            return FailFor(path_, message);
        Fail(message);
        return false;
    }

    // Puts the new comments there. The old ones can be put back until the end of this object.
    bool Replace(const std::map<EntryNumber, std::string>& comments) {
        std::set<std::string> stored;
        for (const auto& [entry, text] : comments)
            stored.insert(CommentAsStored(text, input_.FileCodePage));
        std::size_t lost = 0;
        for (const auto& [entry, text] : before_)
            if (!text.empty() && !stored.contains(text))
                ++lost;
        if (lost != 0)
            return FailFor(path_, Say(TextId::StitchCommentsLost, input_) + std::to_string(lost));
        if (comments.empty())
            return true;
        if (isThere_) {
            old_.emplace(path_);
            if (!old_->Path().empty())
                old_->Stream() << std::ifstream(ToPath(path_), std::ios::binary).rdbuf();
            if (const std::error_code error = old_->Prepare())
                return FailFor(path_, error, input_.MessageLanguage);
        }
        if (const std::error_code error = SaveComments(path_, comments, input_.FileCodePage))
            return FailFor(path_, error, input_.MessageLanguage);
        isReplaced_ = true;
        return true;
    }

    // The logbook could not be put in its place.
    void PutBack() {
        if (!isReplaced_)
            return;
        std::error_code error;
        if (old_)
            error = old_->Commit();
        else
            std::filesystem::remove(ToPath(path_), error);
        if (error)
            FailFor(path_, Say(TextId::StitchCommentsReplaced, input_));
    }

  private:
    std::string path_;
    std::string logbook_;
    const StitchInput& input_;
    bool isThere_ = false;
    bool isReplaced_ = false;
    std::map<std::int64_t, std::string> before_;
    std::optional<AtomicFile> old_;
};

// Refuses what nobody can be asked about.
class StitchDecisions : public ArchiveDecisions {
  public:
    StitchDecisions(const std::string& archive, Language language) : archive_(archive), language_(language) {}

    std::optional<std::string> Archive(const std::string&, const std::string&) override { return archive_; }

    OldComments DecideOn(const ArchivedComments& lost, bool) override {
        if (lost.What == ArchivedComments::Kind::None)
            return OldComments::Replace;
        FailFor(archive_, TellArchivedComments(lost, language_));
        return OldComments::Cancel;
    }

    // The comments come out of files in the same code page, so they lose nothing.
    bool AgreesToLosses(std::string_view) override { return true; }
    bool AgreesToChangedLogbook() override { return true; }

  private:
    std::string archive_;
    Language language_;
};

} // namespace

bool WriteStitchedLog(const std::string& path, const StitchInput& input, StitchedResult& result) {
    CommentsBeside comments(path, input);
    if (!comments.MayBeReplaced())
        return false;
    AtomicFile file(path);
    CarriedComments carried;
    if (!Write(file, path, input, result, carried))
        return false;
    // From here on only moving can fail.
    std::error_code error = file.Prepare();
    if (error)
        return FailFor(path, error, input.MessageLanguage);
    if (!comments.Replace(carried.Placed))
        return false;
    error = file.Commit();
    if (!error)
        return true;
    comments.PutBack();
    return FailFor(path, error, input.MessageLanguage);
}

bool WriteStitchedArchive(const std::string& path, const StitchInput& input, StitchedResult& result) {
    const Workplace workplace(input.Temp);
    const std::filesystem::path log = workplace.Path() / "stitched.log";
    const std::filesystem::path comments = workplace.Path() / "stitched.cmt";
    if (workplace.Path().empty() || !input.Temp.Note({log, comments}))
        return FailFor(path, Say(TextId::NoTemporaryFolder, input));
    AtomicFile file(log.string());
    CarriedComments carried;
    if (!Write(file, log.string(), input, result, carried))
        return false;
    std::error_code error = file.Commit();
    if (error)
        return FailFor(log.string(), error, input.MessageLanguage);
    error = SaveComments(comments.string(), carried.Placed, input.FileCodePage);
    if (error)
        return FailFor(comments.string(), error, input.MessageLanguage);

    std::vector<std::string> files{path};
    for (std::size_t i = 0; i < input.Sources.Exports().size(); ++i)
        files.push_back(input.Sources.Name(i));
    TerminalDocument document({.Files = files,
                               .ArchiveFilters = UserInterface::Answer::Yes,
                               .MessageLanguage = input.MessageLanguage});
    if (!document.Open(log.string(), {.Comments = comments.string(), .Filters = input.FilterFile}) ||
        !document.HasComments())
        return false;
    StitchDecisions decisions(path, input.MessageLanguage);
    return document.ZipLogbook(decisions);
}
