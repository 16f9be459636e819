// SPDX-License-Identifier: MIT
#include "document/FindErrorTexts.h"

#include "base/AsciiCase.h"
#include "base/Paths.h"
#include "base/Workplace.h"
#include "eventinfo/ErrorTextFolder.h"
#include "sources/ZipArchive.h"

#include <algorithm>
#include <utility>

namespace {

class ErrorTextArchive : public ErrorTextSource {
  public:
    ErrorTextArchive(const std::filesystem::path& file, const TempFolder& tempFolder, Language language)
        : language_(language), outer_(file, language, {}), workplace_(tempFolder) {
        problem_ = outer_.Error();
        if (!problem_.empty())
            return;
        std::vector<Found> found;
        FindIn(outer_, 0, found);
        const std::optional<std::size_t> system = outer_.FindMember(
            [](const ZipMember& member) { return IsSameWithoutCase(member.FileName(), SystemArchive); });
        if (system)
            FindInSystem(*system, tempFolder, found);
        if (problem_.empty())
            Choose(std::move(found), language);
    }

    std::optional<std::string> Content(std::size_t file, std::string& reason) override {
        const std::size_t place = PlaceOf(file);
        const bool isOuter = place < outer_.Members().size();
        ZipArchive& archive = isOuter ? outer_ : *inner_;
        std::string content;
        if (archive.Read(isOuter ? place : place - outer_.Members().size(), [&](std::string_view piece) {
                content.append(piece);
                return true;
            }))
            return content;
        reason = archive.Error();
        return std::nullopt;
    }

  private:
    static constexpr std::string_view SystemArchive = "sysroot.zip";

    // The places in the inner archive follow those of the outer one.
    void FindIn(const ZipArchive& archive, std::size_t depth, std::vector<Found>& found) const {
        for (std::size_t member = 0; member < archive.Members().size(); ++member) {
            const ZipMember& item = archive.Members()[member];
            std::optional<ErrorTextFile> file = ErrorTextFileOf(item.Name);
            if (!file || !item.IsFile)
                continue;
            const auto folders =
                static_cast<std::size_t>(std::count(item.Name.begin(), item.Name.end(), '\\'));
            found.push_back({std::move(*file), depth + folders, item.Name, item.Size,
                             member + (depth == 0 ? 0 : outer_.Members().size())});
        }
    }

    void FindInSystem(std::size_t member, const TempFolder& tempFolder, std::vector<Found>& found) {
        const std::filesystem::path unpacked = workplace_.Path() / SystemArchive;
        if (workplace_.Path().empty() || !tempFolder.Note({unpacked})) {
            problem_ = Text(TextId::ZipNotUnpacked, language_);
        } else if (!outer_.Unpack(member, unpacked)) {
            problem_ = outer_.Error();
        } else {
            inner_.emplace(unpacked, language_, std::span<const ZipBound>());
            problem_ = inner_->Error();
            constexpr std::size_t BehindTheOuter = 1000; // deeper than any folder there
            if (problem_.empty())
                FindIn(*inner_, BehindTheOuter, found);
        }
    }

    Language language_;
    ZipArchive outer_;
    Workplace workplace_;
    std::optional<ZipArchive> inner_;
};

} // namespace

std::unique_ptr<ErrorTextSource> FindErrorTexts(const std::string& place, const TempFolder& tempFolder,
                                                Language language) {
    std::error_code error;
    if (std::filesystem::is_directory(ToPath(place), error))
        return std::make_unique<ErrorTextFolder>(ToPath(place), language);
    return std::make_unique<ErrorTextArchive>(ToPath(place), tempFolder, language);
}
