// SPDX-License-Identifier: MIT
#include "cli/HistoryTexts.h"

#include "cli/Messages.h"
#include "eventinfo/iZEKEventInfo.h"

Record IsoOrNull(const std::optional<Stamp>& stamp) { return stamp ? Record(IsoText(*stamp)) : Record(); }

Record TextOrNull(const std::optional<std::string>& text) { return text ? Record(*text) : Record(); }

Record SecondsOrNull(const std::optional<std::chrono::milliseconds>& time) {
    return time ? Seconds(*time) : Record();
}

ErrorKeys ReadErrorKeys(const HistoryOptions& options) {
    FacilityFileMistake mistake;
    ErrorKeys keys(FacilitiesIn(LanguageFolders(options.LanguageFolder), mistake));
    if (const std::string message = FacilityFileMessage(mistake, options.MessageLanguage); !message.empty())
        TellMessage(message);
    return keys;
}
