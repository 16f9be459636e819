// SPDX-License-Identifier: MIT
#include "cli/StitchSources.h"

#include "base/FileProblem.h"
#include "base/PartFiles.h"
#include "base/Paths.h"
#include "cli/Messages.h"
#include "cli/TerminalUser.h"
#include "comments/Comments.h"
#include "settings/ReasonText.h"
#include "settings/Texts.h"
#include "sources/LogbookSource.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

bool StitchSources::Add(const std::string& path) {
    Source source;
    if (!Resolve(path, source))
        return false;
    std::error_code error;
    source.Stamp = StampOf(source.LogbookFile, error);
    ExportLines lines(source.LogbookFile, error);
    if (error) {
        Fail(path + ": " + ReasonText(error, language_));
        return false;
    }
    sources_.push_back(std::move(source));
    exports_.push_back(std::move(lines));
    return true;
}

bool StitchSources::Resolve(const std::string& path, Source& source) {
    source.Name = path;
    source.LogbookFile = path;
    if (!IsArchive(path)) {
        TellOfCommentsBeside(path);
        return true;
    }
    if (const std::error_code error = CheckRegularFile(ToPath(path))) {
        Fail(path + ": " + ReasonText(error, language_));
        return false;
    }
    TerminalUser user(UserInterface::Answer::Yes);
    std::optional<LogbookSource> resolved = ResolveSource(path, tempFolder_, user, language_);
    if (user.MessageShown() || !resolved)
        return false;
    workplaces_.emplace_back(tempFolder_);
    source.LogbookFile = std::move(resolved->LogbookFile);
    source.CommentsFile = std::move(resolved->CommentsFile);
    source.CommentsName = std::move(resolved->CommentsName);
    source.FilterFile = std::move(resolved->FilterFile);
    if (MoveApart(source.LogbookFile, "logbook") && MoveApart(source.CommentsFile, "comments") &&
        MoveApart(source.FilterFile, "filters"))
        return true;
    Fail(path + ": " + std::string(Text(TextId::ZipNotUnpacked, language_)));
    return false;
}

// Only archives bring comments. Those beside a plain logbook may be what an earlier stitch wrote.
void StitchSources::TellOfCommentsBeside(const std::string& logbook) const {
    const std::string comments = ChangeExtension(logbook, ".cmt");
    std::error_code ignored;
    if (std::filesystem::is_regular_file(ToPath(comments), ignored))
        TellMessage(comments + ": " + std::string(Text(TextId::StitchCommentsBeside, language_)));
}

// Moves an unpacked file to the last workplace, before the next archive takes its place.
bool StitchSources::MoveApart(std::string& file, const char* name) {
    if (file.empty())
        return true;
    const std::filesystem::path& folder = workplaces_.back().Path();
    if (folder.empty() || !tempFolder_.Note({folder / name}))
        return false;
    std::error_code error;
    std::filesystem::rename(ToPath(file), folder / name, error);
    file = PathText(folder / name);
    return !error;
}

bool StitchSources::Include(const std::string& path) const {
    return std::any_of(sources_.begin(), sources_.end(), [&](const Source& source) {
        return WritingTouches(ToPath(path), ToPath(source.Name));
    });
}

bool StitchSources::AreUnchanged() const {
    for (const Source& source : sources_) {
        std::error_code ignored;
        if (StampOf(source.LogbookFile, ignored) != source.Stamp) {
            Fail(source.Name + ": " + std::string(Text(TextId::LogbookChangedMeanwhile, language_)));
            return false;
        }
    }
    return true;
}

bool StitchSources::AppendComments(std::size_t source, const CodePage& codePage,
                                   std::vector<CommentOfExport>& comments) const {
    const std::string& file = sources_[source].CommentsFile;
    if (file.empty())
        return true;
    std::map<std::int64_t, std::string> byEntry;
    const CommentsFileResult result = ReadCommentsFile(
        file, codePage, [&](std::int64_t entry, std::string text) { byEntry[entry] = std::move(text); });
    if (result.Result != CommentsFileResult::Outcome::Read) {
        const std::string& name = sources_[source].CommentsName;
        const std::string message = CommentsFileMessage(name, result, language_);
        Fail(result.Result == CommentsFileResult::Outcome::NoHeader ? name + ": " + message : message);
        return false;
    }
    for (auto& [entry, text] : byEntry)
        if (!text.empty())
            comments.push_back({.Export = source, .Entry = entry, .Text = std::move(text)});
    return true;
}
