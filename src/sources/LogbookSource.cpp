// SPDX-License-Identifier: MIT
#include "sources/LogbookSource.h"

#include "logbook/AsciiCase.h"
#include "logbook/TextBeginning.h"
#include "logbook/modUtil.h"
#include "sources/ZipArchive.h"

#include <algorithm>
#include <filesystem>
#include <vector>

namespace {

constexpr std::string_view SystemArchive = "sysroot.zip";
constexpr std::string_view OperationLog = "runtime\\operation.log";
constexpr std::string_view ClassicLog = "logbook\\lb_act.log";
constexpr std::string_view LogExtension = ".log";
constexpr std::string_view FilterExtension = ".fil";
constexpr std::string_view CommentsExtension = ".cmt";

bool EndsWith(std::string_view text, std::string_view lowerEnd) {
    return LowerCase(text).ends_with(lowerEnd);
}

std::string FileNameOf(const std::string& path) {
    std::string folder;
    std::string fileName;
    SplitPath(path, folder, fileName);
    return fileName;
}

// The base name of the unpacked files: the logbook's own or, where no file may have so long a name, its
// begin. That leaves room for what else is made of the name, as that of an archive.
std::string FileBaseOf(const std::string& base) {
    constexpr std::size_t Longest = 255 - LogExtension.size(); // in bytes, on all common file systems
    constexpr std::size_t Cut = 200;
    return base.size() <= Longest ? base : std::string(TextBeginning(base, Cut));
}

// Unpacks the logbook of an archive, with what belongs to it, into a folder that is empty before.
class Extraction {
  public:
    Extraction(const std::filesystem::path& archive, std::filesystem::path folder, Language language)
        : language_(language), archive_(archive, language), folder_(std::move(folder)) {}

    // The base name of the logbook, which then lies in the folder as FileBaseOf it with the extension ".log";
    // nothing when the archive has none or it could not be unpacked whole.
    std::optional<std::string> Extract() {
        if (folder_.empty()) {
            // Without a folder of its own nothing is unpacked: a bare file name would mean the current
            // folder.
            reason_ = Text(TextId::NoTemporaryFolder, language_);
            return std::nullopt;
        }
        const auto system =
            std::find_if(archive_.Members().begin(), archive_.Members().end(),
                         [](const ZipMember& m) { return IsSameWithoutCase(m.Name, SystemArchive); });
        const std::optional<std::size_t> classic = archive_.FindMember(ClassicLog);
        if (system == archive_.Members().end() && !classic)
            return ExtractOwn();

        std::optional<std::string> base;
        if (system != archive_.Members().end() &&
            ExtractOperationLog(static_cast<std::size_t>(system - archive_.Members().begin())))
            base = "operation";
        // The classic logbook, where both are there, is the one that is shown.
        if (classic && Unpack(archive_, *classic, "lb_act.log"))
            base = "lb_act";
        return base;
    }

    // Why it failed; "" when the archive just has no logbook.
    const std::string& Reason() const { return reason_; }

  private:
    bool Unpack(ZipArchive& archive, std::size_t member, std::string_view fileName) {
        if (archive.Unpack(member, folder_ / ToPath(fileName)))
            return true;
        reason_ = archive.Error();
        return false;
    }

    bool ExtractOperationLog(std::size_t systemArchive) {
        if (!Unpack(archive_, systemArchive, SystemArchive))
            return false;
        ZipArchive inner(folder_ / SystemArchive, language_);
        const auto member =
            std::find_if(inner.Members().begin(), inner.Members().end(),
                         [](const ZipMember& m) { return IsSameWithoutCase(m.Name, OperationLog); });
        if (member == inner.Members().end()) {
            reason_ = inner.Error();
            return false;
        }
        return Unpack(inner, static_cast<std::size_t>(member - inner.Members().begin()), "operation.log");
    }

    std::optional<std::string> ExtractOwn() {
        const std::vector<ZipMember>& members = archive_.Members();
        const auto log = std::find_if(members.begin(), members.end(), [](const ZipMember& member) {
            return EndsWith(member.Name, LogExtension);
        });
        if (log == members.end()) {
            reason_ = archive_.Error();
            return std::nullopt;
        }
        const std::string base(log->FileName().substr(0, log->FileName().size() - LogExtension.size()));
        for (const std::string_view extension : {LogExtension, FilterExtension, CommentsExtension}) {
            const std::string name = std::string(base).append(extension);
            const std::string folder = log->Name.substr(0, log->Name.size() - log->FileName().size());
            // What belongs to the logbook lies beside it; only an archive that keeps it elsewhere gives that.
            auto part = std::find_if(members.begin(), members.end(), [&](const ZipMember& member) {
                return IsSameWithoutCase(member.Name, folder + name);
            });
            if (part == members.end())
                part = std::find_if(members.begin(), members.end(), [&](const ZipMember& member) {
                    return IsSameWithoutCase(member.FileName(), name);
                });
            if (part != members.end() && !Unpack(archive_, static_cast<std::size_t>(part - members.begin()),
                                                 FileBaseOf(base).append(extension)))
                return std::nullopt;
        }
        return base;
    }

    Language language_;
    ZipArchive archive_;
    std::filesystem::path folder_;
    std::string reason_;
};

// Puts the unpacked files in the place of all files of that base name from an earlier archive.
void TakeOver(const std::filesystem::path& from, const std::filesystem::path& folder,
              const std::string& fileBase) {
    for (const std::string_view extension : {LogExtension, FilterExtension, CommentsExtension}) {
        const std::filesystem::path file = ToPath(std::string(fileBase).append(extension));
        std::error_code error;
        std::filesystem::remove(folder / file, error);
        std::filesystem::rename(from / file, folder / file, error);
    }
}

std::optional<LogbookSource> ResolveArchive(const std::string& path, const TempFolder& tempFolder,
                                            UserInterface& user, Language language) {
    // Unpacked apart, so that the logbook that is shown keeps its files until it is clear that this one
    // replaces it.
    const std::filesystem::path unpacked = tempFolder.MakeSubfolder();
    user.ShowStatus(TextId::StatusExtracting);
    Extraction extraction(ToPath(path), unpacked, language);
    const std::optional<std::string> base = extraction.Extract();
    user.RestoreStatus();

    std::optional<LogbookSource> source;
    const std::string fileBase = FileBaseOf(base.value_or(""));
    const auto fileIn = [&](const std::filesystem::path& folder, std::string_view extension) {
        return (folder / ToPath(std::string(fileBase).append(extension))).string();
    };
    const auto isUnpacked = [&](std::string_view extension) {
        return FileExists(fileIn(unpacked, extension));
    };
    if (!base) {
        std::string message(Text(TextId::ArchiveWithoutLogbook, language));
        message.append(" (").append(path);
        if (!extraction.Reason().empty())
            message.append(": ").append(extraction.Reason());
        user.ShowMessage(message.append(")"), UserInterface::MessageIcon::Exclamation);
        const std::string fileName = FileNameOf(path);
        source = LogbookSource{fileName.substr(0, fileName.find('.')), "", "", ""};
    } else {
        const UserInterface::Answer answer =
            isUnpacked(FilterExtension) ? user.Ask(TextId::AskReplaceFilters) : UserInterface::Answer::No;
        if (answer != UserInterface::Answer::Cancel) {
            const bool hasComments = isUnpacked(CommentsExtension);
            const bool wantsFilters = answer == UserInterface::Answer::Yes;
            const std::filesystem::path& temp = tempFolder.Path();
            TakeOver(unpacked, temp, fileBase);
            source = LogbookSource{base->substr(0, base->find('.')), fileIn(temp, LogExtension),
                                   hasComments ? fileIn(temp, CommentsExtension) : "",
                                   wantsFilters ? fileIn(temp, FilterExtension) : ""};
        }
    }
    std::error_code ignored;
    std::filesystem::remove_all(unpacked, ignored);
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
    return LogbookSource{fileName.substr(0, fileName.find('.')), path, "", ""};
}
