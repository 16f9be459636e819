// SPDX-License-Identifier: MIT
// Any bytes as a facilities.csv; the first line is the data text of an entry, whose code is looked up with
// it.
#include "FuzzSupport.h"
#include "base/CodePage.h"
#include "eventinfo/FacilityFile.h"
#include "eventinfo/iZEKEventInfo.h"

#include <algorithm>

namespace {

using Outcome = FacilityFileContent::Outcome;

// The table as a file again.
std::string FileOf(const FacilityTable& table) {
    static const CodePage codePage;
    std::string file;
    for (const FacilityRecord& facility : table)
        if (facility != FacilityRecord())
            file.append(std::to_string(facility.Number))
                .append(";")
                .append(codePage.FromUtf8(facility.FilePrefix).Text)
                .append(" ; ")
                .append(codePage.FromUtf8(facility.ModuleName).Text)
                .append("\r\n\r\n");
    return file;
}

void CheckTable(const FacilityTable& table) {
    for (std::size_t slot = 0; slot < table.size(); ++slot) {
        const FacilityRecord& facility = table[slot];
        Check(facility.Number >= 0 && IsUtf8(facility.FilePrefix) && IsUtf8(facility.ModuleName));
        Check(facility.FilePrefix.find_first_of("/\\:") == std::string::npos);
        Check(FindFacility(table, facility.Number) <= slot);
        Check(slot < FacilityRowsAtMost || facility == FacilityRecord());
    }
    const MemoryFile file(FileOf(table));
    const FacilityFileContent again = ReadFacilityFile(file.Path());
    Check(again.Result == Outcome::Read && again.Table == table);
}

// Some texts that can be found, in English.
bool WriteTexts(const ScratchFolder& folder) {
    folder.Write("nckernel_en.xmt",
                 "<string id=\"A\" value=\"1\" class=\"Ev_class_2\">\n<text>a</text>\n</string>\n");
    std::filesystem::create_directory(folder.Path() / "English");
    folder.Write("English/ErrorText.csv", "number\n5;b;c;d\n");
    folder.Write("English/qx_error_help.txt", "215\nmessage\n\nCause of error:\ncause\n");
    folder.Write("English/error.a", "012 message\n");
    folder.Write("English/fix.a", "012 -\nfix it\n");
    return true;
}

void CheckCode(std::string_view text, const FacilityTable& table) {
    const std::optional<EventCode> code = ParseEventCode(text, table);
    Check(!code || (code->Number >= -1 && FindFacility(table, code->Facility) != 0));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder folder;
    static const bool hasTexts = WriteTexts(folder);
    Check(hasTexts);
    std::string_view content = TextOf(data, size);
    const std::string_view text = TakeLine(content);
    const std::string path = folder.Write("facilities.csv", content);
    const FacilityFileContent facilities = ReadFacilityFile(path);
    const bool isWrong =
        facilities.Result == Outcome::InvalidLine || facilities.Result == Outcome::TooManyRows;
    Check(FacilityFileMessage({path, facilities.Result, facilities.Line}, {}).empty() != isWrong);
    if (facilities.Result == Outcome::Read)
        CheckTable(facilities.Table);
    static const FacilityTable builtIn = InitFacilityTable();
    CheckCode(text, builtIn);
    CheckCode(text, facilities.Table);

    const bool looksUp = text.find("Event: ") != std::string_view::npos;
    for (const std::int32_t language : {Language::English, Language::German}) {
        const ProposedComment comment = AutoFillComment(text, {language}, folder.Path().string());
        Check((comment.Mistake == FacilityFileMistake()) == !(isWrong && looksUp));
        Check(FacilityFileMessage(comment.Mistake, {language}).empty() == !(isWrong && looksUp));
        Check(!comment.Text || IsUtf8(*comment.Text));
    }
    return 0;
}
