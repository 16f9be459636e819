// SPDX-License-Identifier: MIT
#include "app/FileOrders.h"

#include "app/WindowProgress.h"
#include "app/WindowUser.h"
#include "dialogs/frmErrorTexts.h"
#include "dialogs/frmProgress.h"
#include "document/FindErrorTexts.h"
#include "document/LogbookDocument.h"
#include "eventinfo/iZEKEventInfo.h"

#include <memory>

namespace {
constexpr std::string_view ErrorTextsFolderSetting = "InitErrorTextsDir";
} // namespace

bool FileOrders::Run(Command command) {
    switch (command) {
    case Command::ExportList:
        ExportList();
        return true;
    case Command::TakeOverErrorTexts:
        TakeOverErrorTexts();
        return true;
    default:
        return false;
    }
}

void FileOrders::ExportList() {
    frmProgress progress(TextId::ExportingList, language_, &parts_.Window);
    parts_.Document.ExportList(
        [&](double percent) { return progress.GoesOn(percent) && !parts_.Progress.StopWanted(); });
}

void FileOrders::TakeOverErrorTexts() {
    const std::string ownFolder = UserLanguageFolder();
    std::unique_ptr<ErrorTextSource> source;
    frmErrorTexts dialog(
        language_, ownFolder,
        parts_.Settings.ReadLogbookSettingString(
            ErrorTextsFolderSetting, parts_.Settings.ReadLogbookSettingString("InitLogbookDir", "")),
        [&](const std::string& place) {
            source = FindErrorTexts(place, parts_.Document.Temp(), language_);
            return PlanTakeOver(*source, ownFolder);
        },
        &parts_.Window);
    if (dialog.exec() != QDialog::Accepted || !source)
        return;
    parts_.Settings.WriteLogbookSetting(ErrorTextsFolderSetting, dialog.Folder(), SettingType::Text);
    TakeOverResult result;
    {
        // No other order runs beside this one.
        const BusyLogbook busy(parts_.Document.Book());
        frmProgress progress(TextId::TakingOverErrorTexts, language_, &parts_.Window);
        result = TakeOver(*source, ownFolder, language_, [&](double percent) {
            return progress.GoesOn(percent) && !parts_.Progress.StopWanted();
        });
    }
    if (!parts_.Progress.StopWanted())
        TellResult(result);
}

void FileOrders::TellResult(const TakeOverResult& result) {
    std::string message;
    const auto add = [&](TextId text, const std::string& rest) {
        message.append(message.empty() ? "" : "\n").append(Text(text, language_)).append(rest);
    };
    if (!result.Failure.empty())
        add(TextId::ErrorTextsNotTaken, " (" + result.Failure + ")");
    else if (result.IsEnded)
        add(TextId::ErrorTextsNotTaken, "");
    add(TextId::ErrorTextsTaken, std::to_string(result.Taken));
    if (result.Kept != 0)
        add(TextId::ErrorTextsKept, std::to_string(result.Kept));
    if (result.Same != 0)
        add(TextId::ErrorTextsSame, std::to_string(result.Same));
    parts_.User.ShowMessage(message, result.Failure.empty() ? UserInterface::MessageIcon::None
                                                            : UserInterface::MessageIcon::Exclamation);
}
