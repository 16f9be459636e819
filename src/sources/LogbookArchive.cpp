// SPDX-License-Identifier: MIT
#include "sources/LogbookArchive.h"

#include "filter/FilterFile.h"
#include "logbook/AtomicFile.h"
#include "logbook/modUtil.h"
#include "settings/Registry.h"
#include "sources/Comments.h"

#include <zip.h>

#include <cerrno>
#include <system_error>

namespace {

constexpr std::string_view ArchiveExtension = ".qorvix";
constexpr double ProgressStep = 0.005;

// The file name without what follows its last ".".
std::string BaseNameOf(const std::string& path) {
    std::string folder;
    std::string fileName;
    SplitPath(path, folder, fileName);
    return ChangeExtension(fileName, "");
}

std::string ReasonOf(zip_error_t* error) {
    // For a system error only its own text: libzip puts the name of the library's step before it.
    if (zip_error_system_type(error) == ZIP_ET_SYS)
        return std::generic_category().message(zip_error_code_system(error));
    return zip_error_strerror(error);
}

// Why the file cannot be read at this moment; "" when it can.
std::string WhyUnreadable(const std::string& path) {
    std::error_code error;
    if (std::filesystem::is_directory(ToPath(path), error))
        return std::generic_category().message(EISDIR);
    errno = 0;
    const std::ifstream stream(ToPath(path), std::ios::binary);
    return stream ? "" : std::generic_category().message(errno != 0 ? errno : EIO);
}

class ArchiveWriter {
  public:
    explicit ArchiveWriter(const std::filesystem::path& file) {
        int code = 0;
        archive_ = zip_open(file.string().c_str(), ZIP_CREATE | ZIP_TRUNCATE, &code);
        if (archive_ == nullptr) {
            zip_error_t error;
            zip_error_init_with_code(&error, code);
            reason_ = ReasonOf(&error);
            zip_error_fini(&error);
        }
    }
    ~ArchiveWriter() {
        if (archive_ != nullptr)
            zip_discard(archive_);
    }
    ArchiveWriter(const ArchiveWriter&) = delete;
    ArchiveWriter& operator=(const ArchiveWriter&) = delete;

    void AddFile(const std::string& name, const std::string& path) {
        Add(name,
            archive_ == nullptr ? nullptr : zip_source_file(archive_, ToPath(path).string().c_str(), 0, -1));
    }

    // The text must live until Close.
    void AddText(const std::string& name, const std::string& text) {
        Add(name, archive_ == nullptr ? nullptr : zip_source_buffer(archive_, text.data(), text.size(), 0));
    }

    // Writes everything; "" or why that failed.
    std::string Close(const std::function<void(double percent)>& progress) {
        if (archive_ == nullptr || !reason_.empty())
            return reason_;
        zip_register_progress_callback_with_state(archive_, ProgressStep, &ShowProgress, nullptr,
                                                  const_cast<std::function<void(double)>*>(&progress));
        if (zip_close(archive_) != 0)
            return ReasonOf(zip_get_error(archive_));
        archive_ = nullptr;
        return "";
    }

  private:
    void Add(const std::string& name, zip_source_t* source) {
        if (archive_ == nullptr || !reason_.empty())
            return;
        if (source == nullptr || zip_file_add(archive_, name.c_str(), source, ZIP_FL_ENC_UTF_8) < 0) {
            reason_ = ReasonOf(zip_get_error(archive_));
            zip_source_free(source);
        }
    }

    static void ShowProgress(zip_t*, double done, void* progress) {
        const auto& show = *static_cast<std::function<void(double)>*>(progress);
        if (show)
            show(done * 100);
    }

    zip_t* archive_ = nullptr;
    std::string reason_;
};

std::string ListOf(const auto& numbers, std::size_t first) {
    constexpr std::size_t MostNamed = 10;
    std::string list;
    for (std::size_t i = 0; i < numbers.size() && i < MostNamed; ++i)
        list.append(i == 0 ? "" : ", ").append(std::to_string(numbers[i] + first));
    return numbers.size() > MostNamed ? list + ", ..." : list;
}

} // namespace

std::string WriteArchive(const std::string& path, const ArchiveContents& contents,
                         const std::function<void(double percent)>& progress) {
    if (const std::string reason = WhyUnreadable(contents.LogbookFile); !reason.empty())
        return contents.LogbookFile + ": " + reason;
    AtomicFile file(path);
    const std::filesystem::path& part = file.PathToWrite();
    if (part.empty())
        return file.Commit().message();
    ArchiveWriter writer(part);
    writer.AddFile(contents.BaseName + ".log", contents.LogbookFile);
    writer.AddText(contents.BaseName + ".fil", contents.Filters);
    writer.AddText(contents.BaseName + ".cmt", contents.Comments);
    if (const std::string reason = writer.Close(progress); !reason.empty())
        return reason;
    const std::error_code error = file.Commit();
    return error ? error.message() : "";
}

std::string QuestionAboutLosses(const std::vector<EntryNumber>& entries,
                                const std::vector<std::size_t>& filters, Language language) {
    if (entries.empty() && filters.empty())
        return "";
    std::string question(Text(TextId::LosesCharacters, language));
    if (!entries.empty())
        question.append("\n").append(Text(TextId::LosesInComments, language)).append(ListOf(entries, 0));
    // Filters are counted from 1, as their numbers in the settings are.
    if (!filters.empty())
        question.append("\n").append(Text(TextId::LosesInFilters, language)).append(ListOf(filters, 1));
    return question.append("\n\n").append(Text(TextId::AskToGoOn, language));
}

bool ZipLogbook(const ZipRequest& request, Registry& registry, UserInterface& user, Language language) {
    if (request.LogbookFile.empty())
        return false;
    std::string folder;
    std::string fileName;
    SplitPath(request.LogbookFile, folder, fileName);
    const std::optional<std::string> path = user.AskFileToSave(
        {TextId::SaveArchiveTitle, TextId::SaveArchiveFilter, request.InitZipArchiveDir,
         ChangeExtension(fileName, ArchiveExtension), std::string(ArchiveExtension.substr(1))});
    if (!path || path->empty())
        return false;
    const std::string question =
        QuestionAboutLosses(CommentsThatLose(request.Entries, request.Encoding),
                            FiltersThatLose(request.Filters, request.Encoding), language);
    if (!question.empty() && !user.Confirm(question))
        return false;

    user.ShowStatus(TextId::StatusZipping);
    const std::string reason = WriteArchive(*path,
                                            {BaseNameOf(*path), request.LogbookFile,
                                             FilterFileText(request.Filters, request.Encoding),
                                             CommentsFileText(request.Entries, request.Encoding)},
                                            [&](double percent) { user.ShowProgress(percent); });
    user.RestoreStatus();
    if (!reason.empty()) {
        user.ShowMessage(std::string(Text(TextId::ArchiveNotWritten, language)) + " (" + *path +
                             "): " + reason,
                         UserInterface::MessageIcon::Exclamation);
        return false;
    }
    SplitPath(*path, folder, fileName);
    request.InitZipArchiveDir = folder;
    registry.WriteLogbookSetting("InitZipArchiveDir", folder, SettingType::Text);
    return true;
}
