// SPDX-License-Identifier: MIT
#include "eventinfo/iZEKEventInfo.h"

#include "base/Blanks.h"
#include "base/Paths.h"
#include "base/ProgramFolder.h"
#include "base/UserFolders.h"
#include "eventinfo/ClassicNcErrorText.h"
#include "eventinfo/ClassicPlcErrorText.h"
#include "eventinfo/CsvErrorText.h"
#include "eventinfo/FacilityFile.h"
#include "eventinfo/LanguageFile.h"
#include "eventinfo/Numbers.h"
#include "eventinfo/XmlErrorText.h"
#include "settings/Texts.h"

namespace {

// The folder of the files in one language.
std::string FolderOfLanguage(const std::string& folder, Language language) {
    return FindInFolder(folder, language.IsGerman() ? "GERMAN" : "ENGLISH");
}

void AppendLine(std::string& comment, std::string_view text) { comment.append(text).append(EventTextBreak); }

// Message and cause, with a line break at the end: the beginning of both kinds of comment.
std::string CommentOn(const EventTextRecord& record, Language language) {
    std::string comment;
    AppendLine(comment, record.Message);
    AppendLine(comment, Text(TextId::ReasonLabel, language));
    AppendLine(comment, record.Cause);
    return comment;
}

std::optional<EventTextRecord> ReadCodedText(const EventCode& code, const FacilityTable& table,
                                             Language language, const std::string& folder) {
    if (code.Facility == CsvFacility)
        return ReadCsvErrorText(FindInFolder(FolderOfLanguage(folder, language), "ErrorText.csv"),
                                code.Number);
    const std::string& prefix = table[FindFacility(table, code.Facility)].FilePrefix;
    return ReadXmlErrorText(FindInFolder(folder, prefix + (language.IsGerman() ? "_DE.XMT" : "_EN.XMT")),
                            code.Number);
}

// The event that a data text names by its code, and the facilities that the code is of.
struct CodedEvent {
    EventCode Code;
    FacilityTable Facilities;
};

// Nothing when the data text names none.
std::optional<CodedEvent> CodedEventIn(std::string_view data, std::span<const std::string> folders,
                                       FacilityFileMistake& mistake) {
    const std::size_t mark = data.find(EventMark);
    if (mark == std::string_view::npos)
        return std::nullopt;
    CodedEvent event{{}, FacilitiesIn(folders, mistake)};
    const std::optional<EventCode> code =
        ParseEventCode(data.substr(mark + EventMark.size()), event.Facilities);
    if (!code)
        return std::nullopt;
    event.Code = *code;
    return event;
}

std::optional<std::string> CommentOnCode(const CodedEvent& event, Language language,
                                         const std::string& folder) {
    const std::optional<EventTextRecord> record =
        ReadCodedText(event.Code, event.Facilities, language, folder);
    if (!record)
        return std::nullopt;
    std::string comment = CommentOn(*record, language);
    AppendLine(comment, Text(TextId::FixLabel, language));
    comment.append(record->Fix);
    if (!record->Reaction.empty()) {
        comment.append(EventTextBreak);
        AppendLine(comment, Text(TextId::ReactionLabel, language));
        comment.append(record->Reaction);
    }
    return comment;
}

} // namespace

std::string GetErrorInfoPath() {
    const std::string folder = ProgramFolder();
    return folder.empty() ? folder : folder + "/language/";
}

std::string UserLanguageFolder() { return PathText(DataFolder() / "language" / ""); }

std::vector<std::string> LanguageFolders() { return {UserLanguageFolder(), GetErrorInfoPath()}; }

FacilityTable FacilitiesIn(std::span<const std::string> folders, FacilityFileMistake& mistake) {
    using Outcome = FacilityFileContent::Outcome;
    for (const std::string& folder : folders) {
        const std::string facilityFile = FindInFolder(folder, "facilities.csv");
        const FacilityFileContent facilities = ReadFacilityFile(facilityFile);
        if (facilities.Result == Outcome::Read)
            return facilities.Table;
        if (facilities.Result != Outcome::NotThere) {
            mistake = {facilityFile, facilities.Result, facilities.Line};
            break;
        }
    }
    return InitFacilityTable();
}

std::optional<EventCode> ParseEventCode(std::string_view code, const FacilityTable& table) {
    EventCode parsed;
    if (const std::size_t dash = code.find('-'); dash != std::string_view::npos) {
        parsed.Facility = ReadHexadecimal(Trim(code.substr(0, dash)));
        code.remove_prefix(dash + 1);
    }
    parsed.Number = ReadHexadecimal(Trim(code));
    if (FindFacility(table, parsed.Facility) == 0)
        return std::nullopt;
    return parsed;
}

ProposedComment AutoFillCommentNCK(std::string_view data, Language language, const std::string& folder) {
    const std::span<const std::string> folders(&folder, 1);
    ProposedComment proposed;
    if (const std::optional<CodedEvent> event = CodedEventIn(data, folders, proposed.Mistake))
        proposed.Text = CommentOnCode(*event, language, folder);
    return proposed;
}

std::optional<std::string> AutoFillCommentiZEK(std::string_view data, Language language,
                                               const std::string& folder) {
    const std::size_t blank = data.find(Blank);
    if (blank == std::string_view::npos || (data.front() != 'N' && data.front() != 'P'))
        return std::nullopt;
    const std::int64_t number = ReadDecimal(data.substr(1, blank - 1)).value_or(0);
    const std::string folderOfLanguage = FolderOfLanguage(folder, language);
    const std::optional<EventTextRecord> record =
        data.front() == 'N'
            ? ReadClassicNcErrorText(FindInFolder(folderOfLanguage, "qx_error_help.txt"), number)
            : ReadClassicPlcErrorText(folderOfLanguage, number);
    if (!record)
        return std::nullopt;
    std::string comment = CommentOn(*record, language);
    if (!record->Fix.empty()) {
        AppendLine(comment, Text(TextId::FixLabel, language));
        comment.append(record->Fix);
    }
    return comment;
}

ProposedComment AutoFillComment(std::string_view data, Language language,
                                std::span<const std::string> folders) {
    ProposedComment proposed;
    const std::optional<CodedEvent> event = CodedEventIn(data, folders, proposed.Mistake);
    for (const std::string& folder : folders) {
        proposed.Text = AutoFillCommentiZEK(data, language, folder);
        if (!proposed.Text && event)
            proposed.Text = CommentOnCode(*event, language, folder);
        if (proposed.Text)
            break;
    }
    return proposed;
}

ProposedComment AutoFillComment(std::string_view data, Language language, const std::string& folder) {
    return AutoFillComment(data, language, std::span(&folder, 1));
}
