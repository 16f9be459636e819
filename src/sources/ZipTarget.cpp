// SPDX-License-Identifier: MIT
#include "sources/ZipTarget.h"

#include "sources/ZipReason.h"

#include <cerrno>

ZipTarget::ZipTarget(const std::filesystem::path& file) {
    zip_error_init(&error_);
    std::error_code error;
    file_ = PlacedWriter(file, error);
    if (error)
        zip_error_set(&error_, ZIP_ER_OPEN, error.value());
}

ZipTarget::~ZipTarget() { zip_error_fini(&error_); }

zip_t* ZipTarget::Open() {
    if (!file_.IsOpen())
        return nullptr;
    zip_source_t* const source = zip_source_function_create(Handle, this, &error_);
    if (source == nullptr)
        return nullptr;
    zip_t* const archive = zip_open_from_source(source, ZIP_CREATE | ZIP_TRUNCATE, &error_);
    if (archive == nullptr)
        zip_source_free(source);
    return archive;
}

std::string ZipTarget::Error(Language language) { return ZipReason(error_, language); }

zip_int64_t ZipTarget::Handle(void* target, void* data, zip_uint64_t size, zip_source_cmd_t command) {
    return static_cast<ZipTarget*>(target)->Do(data, size, command);
}

zip_int64_t ZipTarget::Do(void* data, zip_uint64_t size, zip_source_cmd_t command) {
    switch (command) {
    case ZIP_SOURCE_SUPPORTS:
        return zip_source_make_command_bitmap(
            ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE, ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR,
            ZIP_SOURCE_FREE, ZIP_SOURCE_SEEK, ZIP_SOURCE_TELL, ZIP_SOURCE_BEGIN_WRITE,
            ZIP_SOURCE_COMMIT_WRITE, ZIP_SOURCE_ROLLBACK_WRITE, ZIP_SOURCE_WRITE, ZIP_SOURCE_SEEK_WRITE,
            ZIP_SOURCE_TELL_WRITE, ZIP_SOURCE_REMOVE, -1);
    case ZIP_SOURCE_STAT: {
        // The file's old content does not matter: it reads as a missing file.
        zip_error_set(&error_, ZIP_ER_READ, ENOENT);
        return -1;
    }
    case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&error_, data, size);
    case ZIP_SOURCE_BEGIN_WRITE:
        return Begin();
    case ZIP_SOURCE_WRITE:
        return Write(static_cast<const char*>(data), size);
    case ZIP_SOURCE_SEEK_WRITE:
        return Seek(data, size);
    case ZIP_SOURCE_TELL_WRITE:
        return place_;
    default:
        return 0; // nothing is read, and closing and removing the file are its owner's
    }
}

zip_int64_t ZipTarget::Begin() {
    place_ = 0;
    const std::error_code error = file_.Empty();
    return error ? Fail(error) : 0;
}

zip_int64_t ZipTarget::Write(const char* data, zip_uint64_t size) {
    const std::error_code error = file_.Write({data, size}, place_);
    return error ? Fail(error) : static_cast<zip_int64_t>(size);
}

zip_int64_t ZipTarget::Seek(void* data, zip_uint64_t size) {
    std::error_code error;
    const zip_uint64_t whole = file_.Size(error);
    if (error)
        return Fail(error);
    const zip_int64_t place =
        zip_source_seek_compute_offset(static_cast<zip_uint64_t>(place_), whole, data, size, &error_);
    if (place < 0)
        return -1;
    place_ = place;
    return 0;
}

zip_int64_t ZipTarget::Fail(const std::error_code& error) {
    zip_error_set(&error_, ZIP_ER_WRITE, error.value());
    return -1;
}
