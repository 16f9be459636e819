// SPDX-License-Identifier: MIT
#include "eventinfo/LanguageFile.h"

#include "base/AsciiCase.h"
#include "base/CodePage.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"

#include <filesystem>
#include <system_error>

std::string FindInFolder(const std::string& folder, std::string_view name) {
    if (folder.empty())
        return {};
    std::error_code error;
    const std::filesystem::path exact = ToPath(folder) / ToPath(name);
    if (std::filesystem::exists(exact, error))
        return PathText(exact);
    std::string found;
    for (const std::filesystem::path& item : ItemsIn(ToPath(folder))) {
        std::string other = PathText(item.filename());
        if (IsSameWithoutCase(other, name) && (found.empty() || other < found))
            found = std::move(other);
    }
    return found.empty() ? PathText(exact) : PathText(ToPath(folder) / ToPath(found));
}

std::string LanguageFileText(std::string_view bytes) { return CodePage().ToUtf8(bytes); }

LanguageFile::LanguageFile(const std::string& path)
    : readable_(file_.OpenFile(path, clsFile::IfEmpty::StayOpen) && file_.FileSize() <= LargestSize) {}

bool LanguageFile::ReadLine(std::string_view& line) {
    line = {};
    if (!readable_)
        return false;
    try {
        if (!file_.ReadPassingLine(line))
            return false;
        readable_ = line.find('\0') == std::string_view::npos;
    } catch (const RunTimeError&) {
        readable_ = false;
    }
    if (!readable_)
        line = {};
    return readable_;
}
