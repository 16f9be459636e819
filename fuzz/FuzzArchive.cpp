// SPDX-License-Identifier: MIT
#include "FuzzArchive.h"

#include "sources/LogbookSource.h"

#include <vector>

namespace {

using Paths = std::vector<std::filesystem::path>;

constexpr std::string_view Before = "the logbook that was opened before";

class AnsweringUser : public UserInterface {
  public:
    explicit AnsweringUser(Answer answer) : answer_(answer) {}

    void ShowMessage(std::string_view text, MessageIcon) override {
        Check(!text.empty());
        ++Messages;
    }
    Answer Ask(TextId question) override {
        Check(question == TextId::AskReplaceFilters);
        ++Questions;
        return answer_;
    }
    std::optional<std::size_t> Choose(std::string_view, std::span<const AnswerButton>) override {
        return std::nullopt;
    }
    bool Confirm(std::string_view) override { return false; }
    std::optional<std::string> AskFileToOpen(const FileQuestion&) override { return std::nullopt; }
    std::optional<std::string> AskFileToSave(const FileQuestion&) override { return std::nullopt; }
    std::optional<TypedFile> AskTypedFileToSave(const FileQuestion&,
                                                std::span<const std::string_view>) override {
        return std::nullopt;
    }
    void ShowStatus(TextId) override { ++Statuses; }
    void RestoreStatus() override { --Statuses; }

    int Messages = 0;
    int Questions = 0;
    int Statuses = 0;

  private:
    Answer answer_;
};

// All files and folders below one.
Paths AllBelow(const std::filesystem::path& folder) {
    Paths paths;
    for (const auto& item : std::filesystem::recursive_directory_iterator(folder))
        paths.push_back(item.path());
    return paths;
}

void CheckSource(const LogbookSource& source, const std::filesystem::path& temp, const AnsweringUser& user,
                 const CheckUnpacked& check) {
    Check(source.Name.find('.') == std::string::npos);
    Check(source.LogbookFile.empty() == (user.Messages == 1));
    for (const std::string& file : {source.LogbookFile, source.CommentsFile, source.FilterFile}) {
        if (file.empty())
            continue;
        Check(!source.LogbookFile.empty());
        Check(std::filesystem::path(file).parent_path() == temp);
        Check(std::filesystem::is_regular_file(std::filesystem::symlink_status(file)));
        check(ContentOf(file));
    }
}

} // namespace

void OpenArchive(const ScratchFolder& folder, UserInterface::Answer answer, const CheckUnpacked& check) {
    // Names that lead out of the temporary folder by some steps would be seen.
    const std::filesystem::path parent = folder.Path() / "1" / "2" / "3";
    std::filesystem::create_directories(parent);
    const std::size_t outside = AllBelow(folder.Path()).size();
    {
        const TempFolder temp(parent);
        Check(temp.Note({temp.Path() / "lb_act.log"}));
        const std::string before = folder.Write("1/2/3/Qorvix/lb_act.log", Before);
        AnsweringUser user(answer);
        const std::optional<LogbookSource> source = ResolveSource(folder.File("a.zip"), temp, user, {});
        Check(user.Statuses == 0 && user.Messages <= 1 && user.Questions <= 1);
        const Paths unpacked = AllBelow(temp.Path()); // and the folder's mark
        Check(AllBelow(folder.Path()).size() == outside + 1 + unpacked.size());
        Check(unpacked.size() <= 5);
        Check(source.has_value() == (user.Questions == 0 || answer != UserInterface::Answer::Cancel));
        if (!source)
            Check(unpacked.size() == 2 && ContentOf(before) == Before);
        else
            CheckSource(*source, temp.Path(), user, check);
    }
    Check(AllBelow(folder.Path()).size() == outside);
}
