// SPDX-License-Identifier: MIT
#include "eventinfo/ErrorTextFile.h"

#include "base/AsciiCase.h"

#include <algorithm>

namespace {

constexpr Language InEnglish{Language::English};
constexpr Language InGerman{Language::German};

struct FolderRow {
    std::string_view Name;
    Language TextLanguage;
};
constexpr FolderRow Folders[] = {{"ENGLISH", InEnglish}, {"GERMAN", InGerman}};

struct FileRow {
    std::string_view Name;
    ErrorTextKind Kind;
};
constexpr FileRow FilesOfFolders[] = {{"ErrorText.csv", ErrorTextKind::Csv},
                                      {"qx_error_help.txt", ErrorTextKind::Nc},
                                      {"error.a", ErrorTextKind::Plc},
                                      {"reason.a", ErrorTextKind::Plc},
                                      {"fix.a", ErrorTextKind::Plc}};

struct EndRow {
    std::string_view End; // of the name, in small letters
    Language TextLanguage;
};
constexpr EndRow CodedEnds[] = {{"_en.xmt", InEnglish}, {"_de.xmt", InGerman}};

// Cuts the last name off the path.
std::string_view TakeName(std::string_view& path) {
    const std::size_t separator = path.find_last_of("/\\");
    const bool isLast = separator == std::string_view::npos;
    const std::string_view name = isLast ? path : path.substr(separator + 1);
    path = isLast ? std::string_view() : path.substr(0, separator);
    return name;
}

// No control writes such names; the files would be hard to handle, or taken for unfinished ones.
bool IsOdd(std::string_view name) {
    constexpr std::size_t LongestName = 200;
    return name.size() > LongestName || name.find(".qorvix-part-") != std::string_view::npos ||
           std::any_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

} // namespace

std::string ErrorTextFile::PlaceName() const {
    return Folder.empty() ? Name : std::string(Folder).append("/").append(Name);
}

std::optional<ErrorTextFile> ErrorTextFileOf(std::string_view path) {
    const std::string_view name = TakeName(path);
    if (IsOdd(name))
        return std::nullopt;
    const std::string_view folderName = TakeName(path);
    const std::string lower = LowerCase(name);
    for (const EndRow& row : CodedEnds)
        if (lower.size() > row.End.size() && lower.ends_with(row.End))
            return ErrorTextFile{ErrorTextKind::Coded, row.TextLanguage, "", std::string(name)};
    if (lower == "facilities.csv")
        return ErrorTextFile{ErrorTextKind::Facilities, {}, "", std::string(name)};
    for (const FolderRow& folder : Folders)
        if (IsSameWithoutCase(folderName, folder.Name))
            for (const FileRow& file : FilesOfFolders)
                if (IsSameWithoutCase(name, file.Name))
                    return ErrorTextFile{file.Kind, folder.TextLanguage, folder.Name, std::string(name)};
    return std::nullopt;
}
