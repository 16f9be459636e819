// SPDX-License-Identifier: MIT
#include "sources/OpenLogbook.h"

#include "logbook/modUtil.h"
#include "settings/Registry.h"

bool MayLeaveComments(bool commentsEdited, UserInterface& user, const std::function<bool()>& zipLogbook) {
    if (!commentsEdited)
        return true;
    switch (user.Ask(TextId::AskSaveComments)) {
    case UserInterface::Answer::Yes:
        return zipLogbook();
    case UserInterface::Answer::No:
        return true;
    case UserInterface::Answer::Cancel:
        break;
    }
    return false;
}

std::optional<std::string> ReadAndShowLogbookName(Registry& registry, UserInterface& user,
                                                  const std::string& programFolder) {
    const std::optional<std::string> path =
        user.AskFileToOpen({TextId::OpenTitle, TextId::OpenFilter,
                            registry.ReadLogbookSettingString("InitLogbookDir", programFolder), "", ""});
    if (!path || path->empty())
        return std::nullopt;
    std::string folder;
    std::string fileName;
    SplitPath(*path, folder, fileName);
    const Registry::Transaction transaction(registry);
    registry.WriteLogbookSetting("InitLogbookDir", folder, SettingType::Text);
    registry.WriteLogbookSetting("InitLogbookFile", *path, SettingType::Text);
    return path;
}
