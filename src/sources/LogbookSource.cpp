// SPDX-License-Identifier: MIT
#include "sources/LogbookSource.h"

#include "base/AsciiCase.h"
#include "base/Paths.h"
#include "base/TextBeginning.h"
#include "sources/OwnArchive.h"
#include "sources/ZipArchive.h"

#include <filesystem>
#include <vector>

namespace {

constexpr std::string_view SystemArchive = "sysroot.zip";
constexpr std::string_view OperationLog = "runtime\\operation.log";
constexpr std::string_view ClassicLog = "logbook\\lb_act.log";

bool EndsWith(std::string_view text, std::string_view lowerEnd) {
    return LowerCase(text).ends_with(lowerEnd);
}

std::string FileNameOf(const std::string& path) {
    std::string folder;
    std::string fileName;
    SplitPath(path, folder, fileName);
    return fileName;
}

// The base name of the unpacked files: the logbook's own or, when that is too long for a file, its beginning.
// This leaves room for longer names made from it, as that of an archive.
std::string FileBaseOf(const std::string& base) {
    constexpr std::size_t Longest = 255 - LogExtension.size(); // in bytes, on all common file systems
    constexpr std::size_t Cut = 200;
    return base.size() <= Longest ? base : std::string(TextBeginning(base, Cut));
}

// An archive's logbook by its base name, and the unpacked members; "" = none.
struct Unpacked {
    std::string Base;
    std::string Logbook;
    std::string Filters;
    std::string Comments;
};

// Unpacks the logbook of an archive, with its filters and comments, into an empty folder.
class Extraction {
  public:
    // The folder is a subfolder of the temporary one; "" = it could not be made.
    Extraction(const std::filesystem::path& archive, const TempFolder& tempFolder,
               std::filesystem::path folder, Language language)
        : language_(language),
          archive_(archive, language, BoundsBesideLogbook()),
          tempFolder_(tempFolder),
          folder_(std::move(folder)) {}

    // The files are then in the folder, named FileBaseOf the base name with their extensions. Nothing when
    // the archive has no logbook or could not be unpacked whole.
    std::optional<Unpacked> Extract() {
        if (folder_.empty()) {
            // Unpacks nothing without its own folder: a bare file name would mean the current folder.
            reason_ = Text(tempFolder_.Path().empty() ? TextId::NoTemporaryFolder : TextId::ZipNotUnpacked,
                           language_);
            return std::nullopt;
        }
        const std::optional<std::size_t> system = Find(archive_, SystemArchive);
        const std::optional<std::size_t> classic =
            archive_.FindMember([](const ZipMember& member) { return member.Name == ClassicLog; });
        if (!system && !classic)
            return ExtractOwn();

        std::optional<Unpacked> unpacked;
        if (system)
            unpacked = ExtractOperationLog(*system);
        // When both are there, the classic logbook is shown.
        if (classic && Unpack(archive_, *classic, "lb_act.log"))
            unpacked = Unpacked{"lb_act", archive_.Members()[*classic].Name, "", ""};
        return unpacked;
    }

    // Why it failed; "" when the archive just has no logbook.
    const std::string& Reason() const { return reason_; }

  private:
    static std::optional<std::size_t> Find(const ZipArchive& archive, std::string_view name) {
        return archive.FindMember(
            [&](const ZipMember& member) { return IsSameWithoutCase(member.Name, name); });
    }

    bool Unpack(ZipArchive& archive, std::size_t member, std::string_view fileName) {
        const std::filesystem::path file = folder_ / ToPath(fileName);
        const bool isNoted = tempFolder_.Note({file});
        if (isNoted && archive.Unpack(member, file))
            return true;
        reason_ = isNoted ? archive.Error() : std::string(Text(TextId::ZipNotUnpacked, language_));
        return false;
    }

    std::optional<Unpacked> ExtractOperationLog(std::size_t systemArchive) {
        if (!Unpack(archive_, systemArchive, SystemArchive))
            return std::nullopt;
        ZipArchive inner(folder_ / SystemArchive, language_, BoundsBesideLogbook());
        const std::optional<std::size_t> member = Find(inner, OperationLog);
        if (!member) {
            reason_ = inner.Error();
            return std::nullopt;
        }
        if (!Unpack(inner, *member, "operation.log"))
            return std::nullopt;
        return Unpacked{"operation",
                        archive_.Members()[systemArchive].Name + ": " + inner.Members()[*member].Name, "",
                        ""};
    }

    std::optional<Unpacked> ExtractOwn() {
        const std::optional<OwnMembers> own = FindOwnMembers(archive_);
        if (!own) {
            reason_ = archive_.Error();
            return std::nullopt;
        }
        Unpacked unpacked{own->Base, "", "", ""};
        const auto unpack = [&](std::optional<std::size_t> member, std::string_view extension,
                                std::string& name) {
            if (!member)
                return true;
            name = archive_.Members()[*member].Name;
            return Unpack(archive_, *member, FileBaseOf(own->Base).append(extension));
        };
        if (!unpack(own->Logbook, LogExtension, unpacked.Logbook) ||
            !unpack(own->Filters, FilterExtension, unpacked.Filters) ||
            !unpack(own->Comments, CommentsExtension, unpacked.Comments))
            return std::nullopt;
        return unpacked;
    }

    Language language_;
    ZipArchive archive_;
    const TempFolder& tempFolder_;
    std::filesystem::path folder_;
    std::string reason_;
};

// Replaces all files of that base name from an earlier archive by the unpacked ones. False when somebody else
// has put a file of such a name there; nothing has changed then.
bool TakeOver(const std::filesystem::path& from, const TempFolder& tempFolder, const std::string& fileBase) {
    std::vector<std::filesystem::path> unpacked;
    std::vector<std::filesystem::path> places;
    for (const std::string_view extension : {LogExtension, FilterExtension, CommentsExtension}) {
        const std::filesystem::path name = ToPath(std::string(fileBase).append(extension));
        std::error_code error;
        if (std::filesystem::exists(from / name, error)) {
            unpacked.push_back(from / name);
            places.push_back(tempFolder.Path() / name);
        }
    }
    if (!tempFolder.Note(places))
        return false;
    for (const std::string_view extension : {LogExtension, FilterExtension, CommentsExtension})
        tempFolder.RemoveFile(tempFolder.Path() / ToPath(std::string(fileBase).append(extension)));
    for (std::size_t i = 0; i < places.size(); ++i) {
        std::error_code error;
        std::filesystem::rename(unpacked[i], places[i], error);
    }
    return true;
}

std::optional<LogbookSource> ResolveArchive(const std::string& path, const TempFolder& tempFolder,
                                            UserInterface& user, Language language) {
    // Unpacks into a folder apart, so that the present logbook keeps its files until it is clear that this
    // one replaces it.
    const std::filesystem::path unpacked = tempFolder.MakeSubfolder();
    user.ShowStatus(TextId::StatusExtracting);
    Extraction extraction(ToPath(path), tempFolder, unpacked, language);
    const std::optional<Unpacked> parts = extraction.Extract();
    user.RestoreStatus();

    std::optional<LogbookSource> source;
    bool staysApart = false;
    const std::string fileBase = FileBaseOf(parts ? parts->Base : "");
    const auto fileIn = [&](const std::filesystem::path& folder, std::string_view extension) {
        return PathText(folder / ToPath(std::string(fileBase).append(extension)));
    };
    const auto isUnpacked = [&](std::string_view extension) {
        return FileExists(fileIn(unpacked, extension));
    };
    const auto told = [&](const std::string& member) { return path + ": " + member; };
    if (!parts) {
        std::string message(Text(TextId::ArchiveWithoutLogbook, language));
        message.append(" (").append(path);
        if (!extraction.Reason().empty())
            message.append(": ").append(extraction.Reason());
        user.ShowMessage(message.append(")"), UserInterface::MessageIcon::Exclamation);
        const std::string fileName = FileNameOf(path);
        source = LogbookSource{.Name = fileName.substr(0, fileName.find('.'))};
    } else {
        const UserInterface::Answer answer =
            isUnpacked(FilterExtension) ? user.Ask(TextId::AskReplaceFilters) : UserInterface::Answer::No;
        if (answer != UserInterface::Answer::Cancel) {
            const bool hasComments = isUnpacked(CommentsExtension);
            const bool wantsFilters = answer == UserInterface::Answer::Yes;
            staysApart = !TakeOver(unpacked, tempFolder, fileBase);
            const std::filesystem::path& temp = staysApart ? unpacked : tempFolder.Path();
            source = LogbookSource{.Name = parts->Base.substr(0, parts->Base.find('.')),
                                   .LogbookFile = fileIn(temp, LogExtension),
                                   .CommentsFile = hasComments ? fileIn(temp, CommentsExtension) : "",
                                   .FilterFile = wantsFilters ? fileIn(temp, FilterExtension) : "",
                                   .LogbookName = told(parts->Logbook),
                                   .CommentsName = hasComments ? told(parts->Comments) : "",
                                   .FilterName = wantsFilters ? told(parts->Filters) : ""};
        }
    }
    if (!staysApart)
        tempFolder.RemoveSubfolder(unpacked);
    return source;
}

} // namespace

bool IsArchive(std::string_view fileName) {
    return EndsWith(fileName, ".zip") || EndsWith(fileName, ".qorvix");
}

std::optional<LogbookSource> ResolveSource(const std::string& path, const TempFolder& tempFolder,
                                           UserInterface& user, Language language) {
    const std::string fileName = FileNameOf(path);
    if (IsArchive(fileName))
        return ResolveArchive(path, tempFolder, user, language);
    return LogbookSource{
        .Name = fileName.substr(0, fileName.find('.')), .LogbookFile = path, .LogbookName = path};
}
