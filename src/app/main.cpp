// SPDX-License-Identifier: MIT
#include "app/AppIcons.h"
#include "app/frmMain.h"
#include "base/FileSizeLimit.h"
#include "base/Paths.h"
#include "base/ProgramFolder.h"
#include "sources/CommandLine.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace {

// What the program must not remove when it clears up: the logbooks that it is to open, and its own place.
std::vector<std::filesystem::path> KeptFiles(const std::vector<std::string>& arguments) {
    std::vector<std::filesystem::path> kept{ToPath(ProgramFolder())};
    for (const std::string& word : arguments)
        kept.push_back(ToPath(word));
    for (const std::string& source : ParseArguments(arguments, FileExists).Sources)
        kept.push_back(ToPath(source));
    return kept;
}

} // namespace

int main(int argc, char** argv) {
    FailAtFileSizeLimit();
    // All words are logbooks or options of this program, as bytes: none is for Qt, and a file's name need not
    // be UTF-8.
    const std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    int noArguments = std::min(argc, 1);
    QApplication application(noArguments, argv);
    QApplication::setApplicationName("Qorvix");
    QApplication::setApplicationVersion(QORVIX_VERSION);
    // By this name a desktop finds the program's icon and menu entry, also where windows have no icon of
    // their own.
    QApplication::setDesktopFileName("com.veltrandor.Qorvix");
    QApplication::setWindowIcon(MakeAppIcon(AppIcon::Program));

    const std::unique_ptr<SettingsStore> settings = MakeUserSettings();
    Registry registry(*settings);
    const TempFolder tempFolder(TempFolder::SystemFolder(), KeptFiles(arguments));
    LogbookDocument document(registry, tempFolder, CodePage::OfUser());
    frmMain window(document, registry);
    window.show();
    QTimer::singleShot(0, &window, [&] { window.FirstActivation(arguments); });
    return QApplication::exec();
}
