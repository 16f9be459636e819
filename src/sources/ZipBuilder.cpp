// SPDX-License-Identifier: MIT
#include "sources/ZipBuilder.h"

#include "base/OpenForC.h"
#include "base/StopRequest.h"
#include "settings/ReasonText.h"
#include "sources/ZipReason.h"
#include "sources/ZipTarget.h"

#include <zip.h>

#include <cerrno>
#include <cstdio>
#include <memory>

namespace {

struct Discard {
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, Discard>;

// Of 1 to 9: half the time of the usual 6 on a logbook, for an archive that is a twelfth larger.
constexpr zip_uint32_t DeflateLevel = 4;
constexpr double ProgressStep = 0.01; // of the whole

std::string ErrorOf(zip_t* archive, Language language) {
    return ZipReason(*zip_get_error(archive), language);
}

std::string AddFile(zip_t* archive, const FileToPack& file, Language language) {
    errno = 0;
    // The source keeps the file open and closes it.
    std::FILE* const handle = OpenForC(file.File);
    if (handle == nullptr)
        return file.Told + ": " + SystemReason(errno, language);
    zip_source_t* const source = zip_source_filep(archive, handle, 0, -1);
    if (source == nullptr) {
        std::fclose(handle);
        return ErrorOf(archive, language);
    }
    const zip_int64_t index = zip_file_add(archive, file.Name.c_str(), source, ZIP_FL_ENC_GUESS);
    if (index < 0) {
        zip_source_free(source);
        return ErrorOf(archive, language);
    }
    if (zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), ZIP_CM_DEFLATE, DeflateLevel) !=
        0)
        return ErrorOf(archive, language);
    return {};
}

void TellProgress(zip_t*, double part, void* progress) {
    (*static_cast<const PackingProgress*>(progress))(part * 100.0);
}

int IsCancelled(zip_t*, void*) { return StopRequest::IsMade() ? 1 : 0; }

} // namespace

std::string BuildZip(const std::filesystem::path& archive, std::span<const FileToPack> files,
                     Language language, const PackingProgress& progress) {
    ZipTarget target(archive);
    Archive zip(target.Open());
    if (!zip)
        return target.Error(language);
    for (const FileToPack& file : files)
        if (std::string reason = AddFile(zip.get(), file, language); !reason.empty())
            return reason;
    PackingProgress tell = progress;
    if (tell)
        zip_register_progress_callback_with_state(zip.get(), ProgressStep, TellProgress, nullptr, &tell);
    zip_register_cancel_callback_with_state(zip.get(), IsCancelled, nullptr, nullptr);
    const bool closed = zip_close(zip.get()) == 0;
    if (tell)
        tell(0);
    if (!closed)
        return ErrorOf(zip.get(), language);
    static_cast<void>(zip.release()); // closing has freed it
    return {};
}
