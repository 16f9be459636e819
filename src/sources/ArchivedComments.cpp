// SPDX-License-Identifier: MIT
#include "sources/ArchivedComments.h"

#include "base/FileStamp.h"
#include "base/FollowLinks.h"
#include "base/Paths.h"
#include "base/Workplace.h"
#include "comments/Comments.h"
#include "logbook/EventLines.h"
#include "settings/ReasonText.h"
#include "settings/Texts.h"
#include "sources/OwnArchive.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <utility>
#include <vector>

namespace {

using Kind = ArchivedComments::Kind;
using ByNumber = std::map<std::int64_t, std::string>;

// One look into an archive.
class Look {
  public:
    Look(const std::string& archive, const ArchiveSuccessor& successor, const TempFolder& tempFolder,
         Language language)
        : successor_(successor),
          language_(language),
          archive_(ToPath(archive), language, BoundsBesideLogbook()),
          tempFolder_(tempFolder),
          workplace_(tempFolder) {}

    ArchivedComments Run() {
        if (!archive_.Error().empty())
            return Unreadable(archive_.Error());
        const std::optional<OwnMembers> own = FindOwnMembers(archive_);
        if (!own || !own->Comments)
            return {};
        ByNumber comments;
        if (std::string reason = Read(*own->Comments, comments); !reason.empty())
            return Unreadable(std::move(reason));
        std::erase_if(comments, [&](const auto& comment) { return IsHere(comment.first, comment.second); });
        if (comments.empty())
            return {};
        const std::optional<bool> isBeginning = IsBeginning(own->Logbook);
        if (!isBeginning)
            return archive_.Error().empty() ? ArchivedComments{} : Unreadable(archive_.Error());
        return *isBeginning ? OfThisLogbook(comments)
                            : ArchivedComments{Kind::OfAnotherLogbook, {}, comments.size(), {}};
    }

  private:
    static ArchivedComments Unreadable(std::string reason) {
        return {Kind::Unreadable, {}, 0, std::move(reason)};
    }

    // Why the comments could not be read; "" when they were.
    std::string Read(std::size_t member, ByNumber& comments) {
        if (workplace_.Path().empty())
            return std::string(Text(TextId::NoTemporaryFolder, language_));
        const std::filesystem::path file = workplace_.Path() / "comments";
        if (!tempFolder_.Note({file}))
            return std::string(Text(TextId::ZipNotUnpacked, language_));
        if (!archive_.Unpack(member, file))
            return archive_.Error();
        const CommentsFileResult result = ReadCommentsFile(
            PathText(file), successor_.FileCodePage,
            [&](std::int64_t number, std::string comment) { comments[number] = std::move(comment); });
        switch (result.Result) {
        case CommentsFileResult::Outcome::Read:
            break;
        case CommentsFileResult::Outcome::CannotRead:
            return ReasonText(result.Error, language_);
        case CommentsFileResult::Outcome::NoHeader:
            return std::string(Text(TextId::CommentsFileNoComments, language_));
        }
        return {};
    }

    bool HasEntry(std::int64_t number) const { return number >= 0 && number < successor_.Entries.Count(); }

    // An empty comment is no loss, nor is one that the new archive also has.
    bool IsHere(std::int64_t number, const std::string& comment) const {
        return comment.empty() ||
               (HasEntry(number) &&
                CommentAsStored(successor_.Entries.Comment(static_cast<EntryNumber>(number)),
                                successor_.FileCodePage) == comment);
    }

    // Whether the logbook file begins with the logbook of the archive; nothing when one of them cannot be
    // read. If the archive has an error, it is the archive.
    std::optional<bool> IsBeginning(std::size_t member) {
        std::error_code error;
        const std::optional<FileStamp> stamp = StampOf(successor_.LogbookFile, error);
        if (!stamp)
            return std::nullopt;
        if (archive_.Members()[member].Size > stamp->Size)
            return false;
        std::ifstream file(ToPath(successor_.LogbookFile), std::ios::binary);
        std::vector<char> block;
        const auto isSame = [&](std::string_view piece) {
            block.resize(piece.size());
            file.read(block.data(), static_cast<std::streamsize>(block.size()));
            return file && std::equal(piece.begin(), piece.end(), block.begin());
        };
        if (archive_.Read(member, isSame))
            return true;
        return archive_.Error().empty() ? std::optional(false) : std::nullopt;
    }

    // Both comments, when the entry has its own.
    std::string WithOwn(std::int64_t number, std::string archived) const {
        std::string own(successor_.Entries.Comment(static_cast<EntryNumber>(number)));
        return own.empty() ? std::move(archived) : own.append(LineSeparator).append(archived);
    }

    ArchivedComments OfThisLogbook(ByNumber& comments) const {
        ArchivedComments lost;
        for (auto& [number, comment] : comments)
            if (HasEntry(number) && !successor_.Changed.contains(static_cast<EntryNumber>(number)))
                lost.Comments[static_cast<EntryNumber>(number)] = WithOwn(number, std::move(comment));
        lost.Count = lost.Comments.size();
        lost.What = lost.Count == 0 ? Kind::None : Kind::OfThisLogbook;
        return lost;
    }

    const ArchiveSuccessor& successor_;
    Language language_;
    ZipArchive archive_;
    const TempFolder& tempFolder_;
    Workplace workplace_;
};

} // namespace

ArchivedComments CommentsLostWith(const std::string& archive, const ArchiveSuccessor& successor,
                                  const TempFolder& tempFolder, Language language) {
    // Does not open what saving refuses to replace: another user's link, the logbook file itself, and
    // anything that is no file; opening a pipe may never end.
    std::error_code error;
    const std::filesystem::path file = FollowLinks(ToPath(archive), error);
    std::error_code noFile;
    if (error || std::filesystem::equivalent(file, ToPath(successor.LogbookFile), noFile))
        return {};
    const std::optional<FileStamp> stamp = StampOf(archive, noFile);
    if (!stamp || stamp->Size == 0)
        return {};
    return Look(archive, successor, tempFolder, language).Run();
}

std::string TellArchivedComments(const ArchivedComments& lost, Language language) {
    const auto text = [&](TextId id) { return std::string(Text(id, language)); };
    switch (lost.What) {
    case Kind::None:
        break;
    case Kind::OfThisLogbook:
        return text(TextId::ArchiveHasComments) + std::to_string(lost.Count);
    case Kind::OfAnotherLogbook:
        return text(TextId::ArchiveHasOtherComments) + std::to_string(lost.Count);
    case Kind::Unreadable:
        return text(TextId::ArchiveToReplaceUnreadable) + " (" + lost.Reason + ")";
    }
    return {};
}
