// SPDX-License-Identifier: MIT
#include "app/AppIcons.h"
#include "app/frmMain.h"
#include "base/Arguments.h"
#include "base/FileSizeLimit.h"
#include "base/Paths.h"
#include "base/StandardStreams.h"
#include "sources/CommandLine.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace {

// The logbooks that the program is to open.
std::vector<std::string> FilesToOpen(const std::vector<std::string>& arguments) {
    std::vector<std::string> files = arguments;
    for (const std::string& source : ParseArguments(arguments, FileExists).Sources)
        files.push_back(source);
    return files;
}

} // namespace

int main(int argc, char** argv) {
    OpenMissingStandardStreams();
    FailAtFileSizeLimit();
    // All words are logbooks or options of this program: none is for Qt.
    const std::vector<std::string> arguments = Arguments(argc, argv);
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
    const TempFolder tempFolder(TempFolder::SystemFolder(), FilesToOpen(arguments));
    StoredActiveFilters filters(registry);
    LogbookDocument document({.Filters = filters, .Settings = registry, .Temp = tempFolder},
                             CodePage::OfUser());
    frmMain window(document, registry);
    window.show();
    QTimer::singleShot(0, &window, [&] { window.FirstActivation(arguments); });
    return QApplication::exec();
}
