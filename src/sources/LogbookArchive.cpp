// SPDX-License-Identifier: MIT
#include "sources/LogbookArchive.h"

#include "base/AtomicFile.h"
#include "base/FileLock.h"
#include "base/Paths.h"
#include "base/Workplace.h"
#include "comments/Comments.h"
#include "filter/FilterFile.h"
#include "settings/ReasonText.h"
#include "settings/Texts.h"
#include "sources/OwnArchive.h"

#include <algorithm>
#include <filesystem>
#include <vector>

namespace {

// "3, 17, 20", or the first ten and "…"; shows the number 0 as `first`.
template <typename Number>
std::string ListOf(const std::vector<Number>& numbers, std::size_t first) {
    constexpr std::size_t MostNamed = 10;
    std::string list;
    for (std::size_t i = 0; i < std::min(numbers.size(), MostNamed); ++i)
        list.append(i == 0 ? "" : ", ").append(std::to_string(numbers[i] + first));
    return numbers.size() > MostNamed ? list.append(", …") : list;
}

// Why the program could not unpack the archive that was built; "" when it could.
std::string RefusalOf(const std::filesystem::path& file, Language language) {
    const ZipArchive archive(file, language, BoundsBesideLogbook());
    for (const ZipMember& member : archive.Members())
        if (const std::string_view refusal = member.Refusal(language, BoundsBesideLogbook());
            !refusal.empty())
            return std::string(refusal);
    return archive.Error();
}

std::string WithFile(const std::string& file, const std::error_code& error, Language language) {
    return error ? file + ": " + ReasonText(error, language) : std::string();
}

// One save, from the checks beforehand to the archive in its place.
class Saving {
  public:
    Saving(const std::string& path, const ArchiveContent& content, const TempFolder& tempFolder,
           Language language)
        : path_(path),
          content_(content),
          tempFolder_(tempFolder),
          language_(language),
          workplace_(tempFolder) {}

    std::string Run(const PackingProgress& progress) {
        std::error_code error;
        const std::optional<FileStamp> now = StampOf(content_.LogbookFile, error);
        if (!now)
            return WithFile(LogbookName(), error, language_);
        const FileStamp stamp = content_.LogbookStamp.value_or(*now);
        if (stamp != *now)
            return Say(TextId::LogbookChangedMeanwhile);
        if (workplace_.Path().empty())
            return Say(tempFolder_.Path().empty() ? TextId::NoTemporaryFolder : TextId::ZipNotUnpacked);
        if (std::filesystem::equivalent(ToPath(path_), ToPath(content_.LogbookFile), error))
            return Say(TextId::ArchiveInPlaceOfLogbook);
        if (LiesIn(ToPath(path_), tempFolder_.Path()))
            return Say(TextId::ArchiveInTemporaryFolder);
        const ZipMember logbook{"", stamp.Size, stamp.Size};
        if (const std::string_view refusal = logbook.Refusal(language_, {}); !refusal.empty())
            return std::string(refusal);

        const std::optional<FileStamp> replaced =
            content_.Replaced ? content_.Replaced->Stamp : StampOf(path_, error);
        AtomicFile archive(path_);
        if (archive.Path().empty())
            return ReasonText(archive.Commit(), language_);
        if (std::string reason = Build(archive.Path(), progress); !reason.empty())
            return reason;
        error = archive.Prepare();
        if (error)
            return ReasonText(error, language_);
        // Of two copies of the program that save onto this place, one must see what the other has done.
        const FileLock alone(FileLock::OfUser("Qorvix.archive.lock"));
        if (StampOf(content_.LogbookFile, error) != stamp)
            return Say(TextId::LogbookChangedMeanwhile);
        if (StampOf(path_, error) != replaced)
            return Say(TextId::ArchiveChangedMeanwhile);
        error = archive.Commit();
        return error ? ReasonText(error, language_) : std::string();
    }

  private:
    const std::string& LogbookName() const {
        return content_.LogbookName.empty() ? content_.LogbookFile : content_.LogbookName;
    }

    std::string Say(TextId reason) const { return std::string(Text(reason, language_)); }

    std::string Build(const std::filesystem::path& archive, const PackingProgress& progress) const {
        std::string folder;
        std::string fileName;
        SplitPath(path_, folder, fileName);
        const std::string base = ChangeExtension(fileName, "");
        const std::filesystem::path filters = workplace_.Path() / "filters";
        const std::filesystem::path comments = workplace_.Path() / "comments";
        if (!tempFolder_.Note({filters, comments}))
            return Say(TextId::ZipNotUnpacked);
        std::error_code error = ExportFilterFile(PathText(filters), content_.Filters, content_.FileCodePage);
        if (error)
            return WithFile(PathText(filters), error, language_);
        error = SaveComments(PathText(comments), content_.Entries, content_.FileCodePage);
        if (error)
            return WithFile(PathText(comments), error, language_);
        const FileToPack files[] = {{base + ".log", ToPath(content_.LogbookFile), LogbookName()},
                                    {base + ".fil", filters, PathText(filters)},
                                    {base + ".cmt", comments, PathText(comments)}};
        std::string reason = BuildZip(archive, files, language_, progress);
        return reason.empty() ? RefusalOf(archive, language_) : reason;
    }

    const std::string& path_;
    const ArchiveContent& content_;
    const TempFolder& tempFolder_;
    Language language_;
    Workplace workplace_;
};

} // namespace

std::string TextsThatLose(const ArchiveContent& content, Language language) {
    std::string text;
    const auto add = [&](TextId what, const std::string& list) {
        if (!list.empty())
            text.append(text.empty() ? "" : "\r\n").append(Text(what, language)).append(list);
    };
    add(TextId::ArchiveCommentsLose, ListOf(CommentsThatLose(content.Entries, content.FileCodePage), 0));
    add(TextId::ArchiveFiltersLose, ListOf(FiltersThatLose(content.Filters, content.FileCodePage), 1));
    return text;
}

std::string SaveLogbookArchive(const std::string& path, const ArchiveContent& content,
                               const TempFolder& tempFolder, Language language,
                               const PackingProgress& progress) {
    return Saving(path, content, tempFolder, language).Run(progress);
}
