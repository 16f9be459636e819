// SPDX-License-Identifier: MIT
#include "cli/StitchReport.h"

#include "base/DeviceStream.h"
#include "base/VisibleControls.h"
#include "cli/Messages.h"
#include "settings/Texts.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <optional>

namespace {

using Reason = CommonLines::Reason;

TextId TextOf(Reason why) {
    switch (why) {
    case Reason::NoneInCommon:
        return TextId::StitchNoneInCommon;
    case Reason::TooFew:
        return TextId::StitchTooFew;
    case Reason::NoStamp:
        return TextId::StitchNoStamp;
    case Reason::SeveralPlaces:
        return TextId::StitchSeveralPlaces;
    case Reason::FirstLineDiffers:
        return TextId::StitchFirstLineDiffers;
    case Reason::OtherHeading:
        return TextId::StitchOtherHeading;
    }
    return TextId::StitchNoneInCommon;
}

std::string NumberOf(const std::optional<std::int64_t>& number, const char* sign, Language language) {
    if (!number)
        return std::string(Text(TextId::StitchUnknown, language));
    return (*number < 0 ? "" : sign) + std::to_string(*number);
}

std::string PairAsText(const std::string& older, const std::string& newer, LineNumber lines,
                       const StitchCounts& counts, Language language) {
    const auto label = [&](TextId id) { return std::string(Text(id, language)); };
    return older + ", " + newer + ": " + label(TextId::StitchLines) + std::to_string(lines) + "; " +
           label(TextId::StitchEntries) + NumberOf(counts.CommonEntries, "", language) + "; " +
           label(TextId::StitchShift) + NumberOf(counts.Shift, "+", language);
}

std::string PairAsJson(const std::string& older, const std::string& newer, LineNumber lines,
                       const StitchCounts& counts) {
    const auto orNull = [](const std::optional<std::int64_t>& number) {
        return number ? nlohmann::ordered_json(*number) : nlohmann::ordered_json(nullptr);
    };
    const nlohmann::ordered_json object{{"older", older},
                                        {"newer", newer},
                                        {"overlap_lines", lines},
                                        {"overlap_entries", orNull(counts.CommonEntries)},
                                        {"shift", orNull(counts.Shift)}};
    // The name of a file may be no UTF-8.
    return WithVisibleControls(object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
}

} // namespace

int TellRefusal(const StitchPlan& plan, const StitchSources& sources, Language language) {
    if (plan.Refused->NothingAdds)
        return Fail(std::string(Text(TextId::StitchNothingToAdd, language)));
    std::string message = sources.Name(plan.Refused->First) + ", " + sources.Name(plan.Refused->Second) +
                          ": " + std::string(Text(TextOf(plan.Refused->Why), language));
    if (plan.Refused->Why == Reason::TooFew)
        message += std::to_string(plan.Refused->Lines);
    return Fail(message);
}

void TellDuplicates(const StitchPlan& plan, const StitchSources& sources, Language language) {
    for (const StitchPlan::Duplicate& duplicate : plan.Duplicates)
        TellMessage(sources.Name(duplicate.Export) + ": " +
                    std::string(Text(TextId::StitchDuplicate, language)) + sources.Name(duplicate.Of));
}

void TellUnplaced(const StitchedResult& result, const StitchSources& sources, Language language) {
    for (const CommentOfExport& comment : result.Unplaced)
        TellMessage(sources.Name(comment.Export) + ": " +
                    std::string(Text(TextId::StitchCommentOfEntry, language)) +
                    std::to_string(comment.Entry) + std::string(Text(TextId::StitchNoPlace, language)) +
                    comment.Text);
}

bool PrintPairs(const StitchedResult& result, const StitchPlan& plan, const StitchSources& sources,
                const std::string& format, Language language) {
    DeviceStream output;
    for (std::size_t i = 0; i < plan.Pairs.size(); ++i) {
        const std::string& older = sources.Name(plan.Pairs[i].Older);
        const std::string& newer = sources.Name(plan.Pairs[i].Newer);
        const LineNumber lines = plan.Pairs[i].Common.Lines;
        std::string line = format == "jsonl" ? PairAsJson(older, newer, lines, result.Counts[i])
                                             : PairAsText(older, newer, lines, result.Counts[i], language);
        if (output.IsTerminal())
            line = WithVisibleControls(line);
        output.Stream() << line << '\n';
    }
    output.Stream().flush();
    return static_cast<bool>(output.Stream());
}
