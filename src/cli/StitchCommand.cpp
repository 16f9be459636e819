// SPDX-License-Identifier: MIT
#include "cli/StitchCommand.h"

#include "base/AsciiCase.h"
#include "base/RunTimeError.h"
#include "base/StopRequest.h"
#include "cli/ExitStatus.h"
#include "cli/Messages.h"
#include "cli/Options.h"
#include "cli/StitchOutput.h"
#include "cli/StitchReport.h"
#include "filter/FilterFile.h"
#include "settings/Texts.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <new>

CLI::App* AddStitchCommand(CLI::App& app, StitchOptions& options) {
    CLI::App* const command = app.add_subcommand(
        "stitch", "Make one logbook of exports that overlap, with the comments of own archives");
    command
        ->add_option("EXPORT", options.Sources,
                     "Logbooks, service archives (*.zip) and own archives (*.qorvix), in any order")
        ->required()
        ->expected(2, -1);
    command
        ->add_option(
            "--output", options.Output,
            "Write a plain logbook (*.log), with comments beside it (*.cmt), or an own archive (*.qorvix)")
        ->required()
        ->check(NameIsGiven());
    command
        ->add_option("--format", options.Format, "What is printed of each pair: text or jsonl (JSON Lines)")
        ->check(CLI::IsMember({"text", "jsonl"}))
        ->capture_default_str();
    AddLanguageOption(*command, options.MessageLanguage, "Of messages");
    return command;
}

namespace {

// The exports from the newest to the oldest; duplicates stand behind the one that they add nothing to.
std::vector<std::size_t> NewestFirst(const StitchPlan& plan) {
    std::vector<std::size_t> newestFirst(plan.Order.rbegin(), plan.Order.rend());
    for (std::size_t i = 0; i < newestFirst.size(); ++i)
        for (const StitchPlan::Duplicate& duplicate : plan.Duplicates)
            if (duplicate.Of == newestFirst[i])
                newestFirst.insert(newestFirst.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                                   duplicate.Export);
    return newestFirst;
}

class Stitching {
  public:
    explicit Stitching(const StitchOptions& options)
        : options_(options),
          temp_(TempFolder::SystemFolder(), KeptFiles(options)),
          sources_(temp_, options.MessageLanguage) {}

    int Run() {
        const std::string name = LowerCase(options_.Output);
        const bool isArchive = name.ends_with(".qorvix");
        if (!isArchive && !name.ends_with(".log"))
            return FailForOutput(TextId::StitchOutputName);
        for (const std::string& source : options_.Sources)
            if (!sources_.Add(source))
                return ExitStatus::Failed;
        if (sources_.Include(options_.Output))
            return FailForOutput(TextId::StitchInPlaceOfSource);
        const StitchPlan plan = PlanStitch(sources_.Exports());
        TellDuplicates(plan, sources_, options_.MessageLanguage);
        if (plan.Refused && !(plan.Refused->NothingAdds && DuplicatesHaveComments(plan)))
            return TellRefusal(plan, sources_, options_.MessageLanguage);

        StitchInput input{.Sources = sources_,
                          .Plan = plan,
                          .Comments = {},
                          .Filters = {},
                          .FileCodePage = codePage_,
                          .Temp = temp_,
                          .MessageLanguage = options_.MessageLanguage};
        StitchedResult result;
        if (!TakeComments(plan, input.Comments) || (isArchive && !TakeFilters(plan, input)) ||
            !(isArchive ? WriteStitchedArchive : WriteStitchedLog)(options_.Output, input, result))
            return ExitStatus::Failed;
        TellUnplaced(result, sources_, options_.MessageLanguage);
        return PrintPairs(result, plan, sources_, options_.Format, options_.MessageLanguage)
                   ? ExitStatus::Done
                   : Fail(std::string(Text(TextId::ListNotWritten, options_.MessageLanguage)));
    }

  private:
    // Clearing the temporary folder spares them.
    static std::vector<std::string> KeptFiles(const StitchOptions& options) {
        std::vector<std::string> files = options.Sources;
        files.push_back(options.Output);
        return files;
    }

    int FailForOutput(TextId reason) const {
        return Fail(options_.Output + ": " + std::string(Text(reason, options_.MessageLanguage)));
    }

    // Whether duplicates of the only export that is left may bring comments that this one does not have.
    // Comments that cannot be read are reported when they are taken.
    bool DuplicatesHaveComments(const StitchPlan& plan) const {
        std::vector<CommentOfExport> own;
        sources_.AppendComments(plan.Order.front(), codePage_, own);
        return std::any_of(plan.Duplicates.begin(), plan.Duplicates.end(), [&](const auto& duplicate) {
            std::vector<CommentOfExport> comments;
            if (!sources_.AppendComments(duplicate.Export, codePage_, comments))
                return false;
            return std::any_of(comments.begin(), comments.end(), [&](CommentOfExport& comment) {
                comment.Export = plan.Order.front();
                return duplicate.Common || std::find(own.begin(), own.end(), comment) == own.end();
            });
        });
    }

    bool TakeComments(const StitchPlan& plan, std::vector<CommentOfExport>& comments) const {
        for (const std::size_t source : NewestFirst(plan))
            if (!sources_.AppendComments(source, codePage_, comments))
                return false;
        return true;
    }

    // Those of the newest own archive that has some.
    bool TakeFilters(const StitchPlan& plan, StitchInput& input) const {
        for (const std::size_t source : NewestFirst(plan)) {
            const std::string& file = sources_.FilterFile(source);
            if (file.empty())
                continue;
            FilterFileContent content = ImportFilterFile(file, codePage_);
            if (content.Result != FilterFileContent::Outcome::Read) {
                Fail(FilterFileMessage(sources_.Name(source), content, options_.MessageLanguage));
                return false;
            }
            if (content.Filters.empty())
                continue;
            input.Filters = std::move(content.Filters);
            input.FiltersOf = source;
            return true;
        }
        return true;
    }

    const StitchOptions& options_;
    CodePage codePage_ = CodePage::OfUser();
    TempFolder temp_;
    StitchSources sources_;
};

} // namespace

int RunStitch(const StitchOptions& options) {
    const auto fail = [&](TextId id) { return Fail(std::string(Text(id, options.MessageLanguage))); };
    try {
        return Stitching(options).Run();
    } catch (const RunTimeError&) {
        return fail(TextId::ReadFailed);
    } catch (const std::bad_alloc&) {
        return fail(TextId::ReadFailed);
    }
}
