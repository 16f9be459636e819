// SPDX-License-Identifier: MIT
#include "cli/Output.h"

#include "base/AtomicFile.h"
#include "base/DeviceStream.h"
#include "base/FileProblem.h"
#include "base/FollowLinks.h"
#include "base/Paths.h"
#include "base/StopRequest.h"
#include "cli/ExitStatus.h"
#include "cli/Messages.h"
#include "rows/ListPlace.h"
#include "settings/ReasonText.h"
#include "settings/Texts.h"

#include <filesystem>

namespace {

bool IsDevice(const std::string& path) {
    std::error_code ignored;
    const auto status = std::filesystem::status(ToPath(path), ignored);
    return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status) &&
           !std::filesystem::is_directory(status);
}

} // namespace

bool RefusesOutput(const OutputPlace& place, const std::vector<std::string>& sources) {
    if (place.File.empty() || IsDevice(place.File))
        return false;
    const std::optional<TextId> refusal = RefusalOfListPlace(place.File, sources);
    if (refusal)
        Fail(place.File + ": " + std::string(Text(*refusal, place.MessageLanguage)));
    return refusal.has_value();
}

int WriteOutput(const OutputPlace& place,
                const std::function<void(std::ostream& stream, bool isTerminal)>& write) {
    const auto text = [&](TextId id) { return std::string(Text(id, place.MessageLanguage)); };
    if (place.File.empty()) {
        DeviceStream output;
        write(output.Stream(), output.IsTerminal());
        return output.Stream() ? ExitStatus::Done : Fail(text(TextId::ListNotWritten));
    }
    const auto cannotWrite = [&](const std::error_code& error) {
        return Fail(place.File + ": " + ReasonText(error, place.MessageLanguage));
    };
    if (IsDevice(place.File)) {
        std::error_code error;
        FollowLinks(ToPath(place.File), error);
        if (error == FileProblem::ForeignLink)
            return cannotWrite(error);
        DeviceStream output(place.File);
        write(output.Stream(), output.IsTerminal());
        return output.Stream() ? ExitStatus::Done : Fail(place.File + text(TextId::FileNotWritten));
    }
    AtomicFile file(place.File);
    write(file.Stream(), false);
    if (StopRequest::IsMade())
        return ExitStatus::Failed;
    if (const std::error_code error = file.Commit())
        return cannotWrite(error);
    return ExitStatus::Done;
}
