// SPDX-License-Identifier: MIT
#include "eventinfo/TakeOverErrorTexts.h"

#include "base/AtomicFile.h"
#include "base/FileProblem.h"
#include "base/Paths.h"
#include "eventinfo/LanguageFile.h"
#include "settings/ReasonText.h"

#include <algorithm>
#include <cstdint>
#include <fstream>

namespace {

constexpr std::string_view KeptExtension = ".bak";

std::string FolderFor(const ErrorTextFile& file, const std::string& folder) {
    return file.Folder.empty() ? folder : FindInFolder(folder, file.Folder);
}

// Where a file goes: in the place of the one that a lookup would find.
std::string TargetOf(const ErrorTextFile& file, const std::string& folder) {
    return FindInFolder(FolderFor(file, folder), file.Name);
}

// Links are not followed: what is written belongs into the folder.
std::filesystem::file_type TypeOf(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::symlink_status(ToPath(path), ignored).type();
}

bool IsThere(const std::string& path) { return TypeOf(path) != std::filesystem::file_type::not_found; }

// The whole of a regular file, piece by piece, as long as `take` returns true. False when `take` stopped, or
// when the file cannot be read to its end.
bool ReadWhole(const std::string& path, const std::function<bool(std::string_view piece)>& take) {
    std::error_code error;
    if (TypeOf(path) != std::filesystem::file_type::regular || !FileExists(path))
        return false;
    std::uintmax_t rest = std::filesystem::file_size(ToPath(path), error);
    std::ifstream stream(ToPath(path), std::ios::binary);
    std::array<char, 65536> block;
    while (!error && rest > 0) {
        const auto wanted = static_cast<std::size_t>(std::min<std::uintmax_t>(block.size(), rest));
        if (!stream.read(block.data(), static_cast<std::streamsize>(wanted)) ||
            !take(std::string_view(block.data(), wanted)))
            return false;
        rest -= wanted;
    }
    return !error;
}

bool HasContent(const std::string& path, std::string_view content) {
    return ReadWhole(path,
                     [&](std::string_view piece) {
                         const bool isSame = content.starts_with(piece);
                         content.remove_prefix(isSame ? piece.size() : 0);
                         return isSame;
                     }) &&
           content.empty();
}

bool IsSameFile(const std::string& a, const std::string& b) {
    std::error_code error;
    if (std::filesystem::file_size(ToPath(a), error) != std::filesystem::file_size(ToPath(b), error) || error)
        return false;
    std::ifstream other(ToPath(b), std::ios::binary);
    std::string part;
    return ReadWhole(a, [&](std::string_view piece) {
        part.resize(piece.size());
        return other.read(part.data(), static_cast<std::streamsize>(part.size())) && part == piece;
    });
}

// Keeps a file beside itself, unless the same content is kept there already.
std::error_code Keep(const std::string& path) {
    if (TypeOf(path) != std::filesystem::file_type::regular)
        return FileProblem::NoRegularFile;
    std::string kept = path + std::string(KeptExtension);
    for (int number = 2; IsThere(kept); ++number) {
        if (IsSameFile(kept, path))
            return {};
        kept = path + std::string(KeptExtension) + std::to_string(number);
    }
    AtomicFile copy(kept);
    const bool isCopied = ReadWhole(path, [&](std::string_view piece) {
        return static_cast<bool>(
            copy.Stream().write(piece.data(), static_cast<std::streamsize>(piece.size())));
    });
    if (!isCopied && copy.Stream())
        return std::make_error_code(std::errc::io_error);
    return copy.Commit();
}

std::error_code Write(const std::string& path, std::string_view content) {
    AtomicFile file(path);
    file.Stream().write(content.data(), static_cast<std::streamsize>(content.size()));
    return file.Commit();
}

// Takes one file; the failure is in `error`.
void TakeFile(const ErrorTextFile& file, std::string_view content, const std::string& folder,
              TakeOverResult& result, std::error_code& error) {
    std::filesystem::create_directories(ToPath(FolderFor(file, folder)), error);
    if (error)
        return;
    const std::string target = TargetOf(file, folder);
    if (HasContent(target, content)) {
        ++result.Same;
        return;
    }
    const bool isReplaced = IsThere(target);
    if (isReplaced)
        error = Keep(target);
    if (!error)
        error = Write(target, content);
    if (error)
        return;
    ++result.Taken;
    if (isReplaced)
        ++result.Kept;
}

} // namespace

bool ErrorTextPlan::IsEmpty() const {
    return std::all_of(Kinds.begin(), Kinds.end(),
                       [](const Row& row) { return row.English == 0 && row.German == 0; });
}

ErrorTextPlan PlanTakeOver(ErrorTextSource& source, const std::string& folder) {
    ErrorTextPlan plan;
    plan.TooLarge = source.TooLarge();
    plan.Problem = source.Problem();
    for (std::size_t i = 0; i < source.Files().size(); ++i) {
        const ErrorTextFile& file = source.Files()[i];
        ErrorTextPlan::Row& row = plan.Kinds[static_cast<std::size_t>(file.Kind)];
        const bool isForBoth = !file.TextLanguage;
        if (isForBoth || !file.TextLanguage->IsGerman())
            ++row.English;
        if (isForBoth || file.TextLanguage->IsGerman())
            ++row.German;
        const std::string target = TargetOf(file, folder);
        if (TypeOf(target) != std::filesystem::file_type::regular)
            continue;
        std::string ignored;
        const std::optional<std::string> content = source.Content(i, ignored);
        if (content && HasContent(target, *content))
            continue;
        ++row.Replaced;
        plan.Replaced.push_back(file.PlaceName());
    }
    return plan;
}

TakeOverResult TakeOver(ErrorTextSource& source, const std::string& folder, Language language,
                        const std::function<bool(double percent)>& goesOn) {
    TakeOverResult result;
    const std::size_t count = source.Files().size();
    for (std::size_t i = 0; i < count; ++i) {
        if (!goesOn(100.0 * static_cast<double>(i) / static_cast<double>(count))) {
            result.IsEnded = true;
            break;
        }
        const ErrorTextFile& file = source.Files()[i];
        std::string reason;
        const std::optional<std::string> content = source.Content(i, reason);
        std::error_code error;
        if (content)
            TakeFile(file, *content, folder, result, error);
        if (error)
            reason = ReasonText(error, language);
        if ((!content || error) && result.Failure.empty())
            result.Failure = file.PlaceName() + ": " + reason;
    }
    return result;
}
