// SPDX-License-Identifier: MIT
#include "sources/ZipArchive.h"

#include "base/AsciiCase.h"
#include "base/OpenForC.h"
#include "base/StopRequest.h"
#include "sources/ZipReason.h"

#include <zip.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>

namespace {

constexpr std::uint64_t MostUnpacked = std::uint64_t{4} << 30U;
constexpr std::uint64_t AlwaysUnpacked = std::uint64_t{64} << 20U;
constexpr std::uint64_t MostExpansion = 1000;

struct CloseMember {
    void operator()(zip_file_t* member) const { zip_fclose(member); }
};

// The library's or the system's reason only when it says more than that the archive is bad.
std::string ReasonOf(zip_error_t& error, Language language) {
    switch (zip_error_code_zip(&error)) {
    case ZIP_ER_NOZIP:
        return std::string(Text(TextId::ZipNoArchive, language));
    case ZIP_ER_CRC:
    case ZIP_ER_ZLIB:
    case ZIP_ER_INCONS:
    case ZIP_ER_EOF:
        return std::string(Text(TextId::ZipDamaged, language));
    case ZIP_ER_ENCRNOTSUPP:
    case ZIP_ER_NOPASSWD:
    case ZIP_ER_WRONGPASSWD:
        return std::string(Text(TextId::ZipEncrypted, language));
    default:
        return ZipReason(error, language);
    }
}

// An archive that was made on Unix has the kinds of its members.
bool IsPlainFile(zip_t& archive, zip_uint64_t member) {
    constexpr zip_uint32_t KindBits = 0170000;
    constexpr zip_uint32_t Regular = 0100000;
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    if (zip_file_get_external_attributes(&archive, member, 0, &system, &attributes) != 0 ||
        system != ZIP_OPSYS_UNIX)
        return true;
    const zip_uint32_t kind = (attributes >> 16U) & KindBits;
    return kind == 0 || kind == Regular;
}

} // namespace

std::string_view ZipMember::FileName() const {
    const std::size_t separator = Name.rfind('\\');
    return std::string_view(Name).substr(separator == std::string::npos ? 0 : separator + 1);
}

std::string_view ZipMember::Refusal(Language language, std::span<const ZipBound> bounds) const {
    if (Size > MostUnpacked)
        return Text(TextId::ZipTooLarge, language);
    for (const ZipBound& bound : bounds)
        if (Size > bound.Most && LowerCase(Name).ends_with(bound.Extension))
            return Text(bound.Reason, language);
    if (Size > AlwaysUnpacked && (Size - 1) / MostExpansion >= PackedSize)
        return Text(TextId::ZipTooDense, language);
    return {};
}

void ZipArchive::Close::operator()(zip* archive) const { zip_discard(archive); }

ZipArchive::ZipArchive(const std::filesystem::path& file, Language language, std::span<const ZipBound> bounds)
    : language_(language), bounds_(bounds) {
    Open(file);
    if (!archive_)
        return;
    const zip_int64_t count = zip_get_num_entries(archive_.get(), 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        zip_stat_t status;
        zip_stat_init(&status);
        ZipMember member;
        // A member without a name or sizes keeps its place, so that a place in the list is a place in the
        // archive.
        if (zip_stat_index(archive_.get(), static_cast<zip_uint64_t>(i), 0, &status) == 0) {
            member.Name = status.name == nullptr ? "" : status.name;
            std::replace(member.Name.begin(), member.Name.end(), '/', '\\');
            member.Size = status.size;
            member.PackedSize = status.comp_size;
            member.IsFile = IsPlainFile(*archive_, static_cast<zip_uint64_t>(i));
        }
        members_.push_back(std::move(member));
    }
}

// The library's own way to open a file takes no names beyond Windows' code page.
void ZipArchive::Open(const std::filesystem::path& file) {
    zip_error_t error;
    zip_error_init(&error);
    errno = 0;
    std::FILE* const handle = OpenForC(file);
    // The source closes the file, the archive the source.
    zip_source_t* source = nullptr;
    if (handle == nullptr)
        zip_error_set(&error, errno == ENOENT ? ZIP_ER_NOENT : ZIP_ER_OPEN, errno);
    else if (source = zip_source_filep_create(handle, 0, -1, &error); source == nullptr)
        std::fclose(handle);
    else
        archive_.reset(zip_open_from_source(source, ZIP_RDONLY, &error));
    if (source != nullptr && !archive_)
        zip_source_free(source);
    if (!archive_)
        error_ = ReasonOf(error, language_);
    zip_error_fini(&error);
}

bool ZipArchive::Fail(std::string_view reason) {
    error_ = reason;
    return false;
}

bool ZipArchive::Unpack(std::size_t member, const std::filesystem::path& target) {
    if (const std::string_view refusal = members_[member].Refusal(language_, bounds_); !refusal.empty())
        return Fail(refusal);
    std::ofstream stream(target, std::ios::binary | std::ios::trunc);
    const bool isRead = Read(member, [&](std::string_view piece) {
        return static_cast<bool>(stream.write(piece.data(), static_cast<std::streamsize>(piece.size())));
    });
    stream.close();
    if (isRead && stream)
        return true;
    std::error_code ignored;
    std::filesystem::remove(target, ignored);
    return stream ? false : Fail(TextId::ZipNotUnpacked);
}

bool ZipArchive::Read(std::size_t member, const std::function<bool(std::string_view)>& take) {
    error_.clear();
    if (const std::string_view refusal = members_[member].Refusal(language_, bounds_); !refusal.empty())
        return Fail(refusal);
    const std::unique_ptr<zip_file_t, CloseMember> source(zip_fopen_index(archive_.get(), member, 0));
    if (!source)
        return Fail(ReasonOf(*zip_get_error(archive_.get()), language_));
    std::array<char, 65536> buffer;
    std::uint64_t read = 0;
    for (;;) {
        const zip_int64_t count = zip_fread(source.get(), buffer.data(), buffer.size());
        if (count < 0)
            return Fail(ReasonOf(*zip_file_get_error(source.get()), language_));
        if (count == 0)
            break;
        if (StopRequest::IsMade())
            return Fail(TextId::ZipNotUnpacked);
        read += static_cast<std::uint64_t>(count);
        // The claimed size limits what is unpacked, whatever the packed data says.
        if (read > members_[member].Size)
            return Fail(TextId::ZipDamaged);
        if (!take({buffer.data(), static_cast<std::size_t>(count)}))
            return false;
    }
    return read == members_[member].Size || Fail(TextId::ZipDamaged);
}
