// SPDX-License-Identifier: MIT
#include "cli/StitchOutput.h"

#include "base/AtomicFile.h"
#include "base/Blanks.h"
#include "base/FileLock.h"
#include "base/Paths.h"
#include "base/StopRequest.h"
#include "base/TextFile.h"
#include "base/Workplace.h"
#include "cli/Messages.h"
#include "cli/TerminalDocument.h"
#include "comments/Comments.h"
#include "filter/FilterFile.h"
#include "filter/NumberList.h"
#include "settings/ReasonText.h"
#include "settings/Texts.h"

#include <algorithm>
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
    const std::string written = PathText(file.Path());
    result.Counts = CountEntries(log, written, input.Sources.Exports(), input.Plan);
    if (!input.Comments.empty())
        carried = CarryComments(log, written, input.Sources.Exports(), input.Comments);
    result.Unplaced = carried.Unplaced;
    return !StopRequest::IsMade();
}

// The comments file beside a logbook.
class CommentsBeside {
  public:
    CommentsBeside(const std::string& logbook, const StitchInput& input)
        : path_(ChangeExtension(logbook, ".cmt")), logbook_(logbook), input_(input) {}

    // Whether the file may be replaced, as far as that can be told without the new comments.
    bool MayBeReplaced() const {
        if (input_.Sources.Include(path_))
            return FailFor(path_, Say(TextId::StitchInPlaceOfSource, input_));
        std::error_code error;
        if (IsThere() && !std::filesystem::exists(ToPath(logbook_), error))
            return FailFor(path_, Say(TextId::StitchCommentsWithoutLogbook, input_));
        return true;
    }

    // Puts the new comments there, if none of the old ones is lost. These can be put back until the end of
    // this object.
    bool Replace(const std::map<EntryNumber, std::string>& comments) {
        const bool isThere = IsThere();
        if (isThere && !KeepsAll(comments))
            return false;
        if (comments.empty())
            return true;
        if (isThere) {
            old_.emplace(path_);
            std::ifstream before(ToPath(path_), std::ios::binary);
            // To copy nothing counts as a failure.
            if (!old_->Path().empty() && before.peek() != std::ifstream::traits_type::eof())
                old_->Stream() << before.rdbuf();
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
    bool IsThere() const {
        std::error_code ignored;
        return std::filesystem::exists(std::filesystem::symlink_status(ToPath(path_), ignored));
    }

    // Whether the new file has every line of the old one: the same comment of the same entry. A line that is
    // no comment, or one that a person wrote in another way, would be lost.
    bool KeepsAll(const std::map<EntryNumber, std::string>& comments) const {
        std::set<std::string> lines;
        for (const auto& [entry, text] : comments)
            lines.insert(CommentsFileLine(entry, text, input_.FileCodePage));
        TextFile file(path_, CommentsFileBounds);
        std::size_t lost = 0;
        std::string_view line;
        if (file.ReadLine(line) && line != CommentsFileHeader)
            return FailFor(path_, Say(TextId::CommentsFileNoComments, input_));
        while (file.ReadLine(line))
            if (!Trim(line).empty() && !lines.contains(std::string(line)))
                ++lost;
        if (file.Error()) {
            const CommentsFileResult result{CommentsFileResult::Outcome::CannotRead, file.Error()};
            Fail(CommentsFileMessage(path_, result, input_.MessageLanguage));
            return false;
        }
        return lost == 0 || FailFor(path_, Say(TextId::StitchCommentsLost, input_) + std::to_string(lost));
    }

    std::string path_;
    std::string logbook_;
    const StitchInput& input_;
    bool isReplaced_ = false;
    std::optional<AtomicFile> old_;
};

// What is added to the number of an entry of an export; nothing where that is not known.
std::optional<std::int64_t> ShiftOf(std::size_t exportNumber, const StitchPlan& plan,
                                    const StitchedResult& result) {
    for (const StitchPlan::Duplicate& duplicate : plan.Duplicates)
        if (duplicate.Export == exportNumber && !duplicate.Common)
            exportNumber = duplicate.Of;
    if (plan.Order.front() == exportNumber)
        return 0;
    for (std::size_t i = 0; i < plan.Pairs.size(); ++i)
        if (plan.Pairs[i].Newer == exportNumber)
            return result.Counts[i].Shift;
    return std::nullopt;
}

// The filters for the stitched logbook, whose entries have other numbers. Reports filters by number that
// cannot be carried.
std::vector<FilterDefinition> CarriedFilters(const StitchInput& input, const StitchedResult& result) {
    if (input.Filters.empty())
        return DefaultFilters();
    const std::optional<std::int64_t> shift = ShiftOf(input.FiltersOf, input.Plan, result);
    std::vector<FilterDefinition> filters = input.Filters;
    const auto isByNumber = [](const FilterDefinition& filter) {
        return filter.FilterType == FilterTypes::Numbers;
    };
    if (!shift && std::any_of(filters.begin(), filters.end(), isByNumber)) {
        TellMessage(input.Sources.Name(input.FiltersOf) + ": " + Say(TextId::StitchNumberFilters, input));
        std::erase_if(filters, isByNumber);
    }
    if (shift && *shift != 0)
        for (FilterDefinition& filter : filters)
            if (isByNumber(filter))
                filter.StringFilter = ShiftNumberList(filter.StringFilter, *shift);
    return filters;
}

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
    // Two runs must not put the logbook of one beside the comments of the other.
    const FileLock alone(FileLock::OfUser("Qorvix.stitch.lock"));
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
    const std::filesystem::path filters = workplace.Path() / "stitched.fil";
    if (workplace.Path().empty() || !input.Temp.Note({log, comments, filters}))
        return FailFor(path, Say(TextId::NoTemporaryFolder, input));
    AtomicFile file(PathText(log));
    CarriedComments carried;
    if (!Write(file, PathText(log), input, result, carried))
        return false;
    std::error_code error = file.Commit();
    if (error)
        return FailFor(PathText(log), error, input.MessageLanguage);
    error = SaveComments(PathText(comments), carried.Placed, input.FileCodePage);
    if (error)
        return FailFor(PathText(comments), error, input.MessageLanguage);
    error = ExportFilterFile(PathText(filters), CarriedFilters(input, result), input.FileCodePage);
    if (error)
        return FailFor(PathText(filters), error, input.MessageLanguage);

    std::vector<std::string> files{path};
    for (std::size_t i = 0; i < input.Sources.Exports().size(); ++i)
        files.push_back(input.Sources.Name(i));
    // The newest export may have been cut within an event, which ends the read early.
    TerminalDocument document({.Files = files,
                               .ArchiveFilters = UserInterface::Answer::Yes,
                               .MessageLanguage = input.MessageLanguage,
                               .Partial = true});
    if (!document.Open(PathText(log), {.Comments = PathText(comments), .Filters = PathText(filters)}) ||
        !document.HasComments())
        return false;
    StitchDecisions decisions(path, input.MessageLanguage);
    return document.ZipLogbook(decisions);
}
