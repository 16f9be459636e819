// SPDX-License-Identifier: MIT
#pragma once

#include "base/PlacedWriter.h"
#include "settings/Language.h"

#include <zip.h>

#include <filesystem>
#include <string>
#include <system_error>

// The file in which libzip builds an archive. Left alone, libzip would write a second file and rename
// it. This class writes into the existing file, which keeps its permissions and its
// lock.
class ZipTarget {
  public:
    // Opens the file; makes it, for its owner only, when there is none.
    explicit ZipTarget(const std::filesystem::path& file);
    ~ZipTarget();
    ZipTarget(const ZipTarget&) = delete;
    ZipTarget& operator=(const ZipTarget&) = delete;

    // An empty archive to build in the file; the object must outlive it. Null on failure; Error then says
    // why.
    zip_t* Open();

    std::string Error(Language language);

  private:
    static zip_int64_t Handle(void* target, void* data, zip_uint64_t size, zip_source_cmd_t command);
    zip_int64_t Do(void* data, zip_uint64_t size, zip_source_cmd_t command);
    zip_int64_t Begin();
    zip_int64_t Write(const char* data, zip_uint64_t size);
    zip_int64_t Seek(void* data, zip_uint64_t size);
    zip_int64_t Fail(const std::error_code& error);

    PlacedWriter file_;
    zip_int64_t place_ = 0;
    zip_error_t error_;
};
