// SPDX-License-Identifier: MIT
#include "app/AppIcons.h"
#include "app/frmMain.h"

#include <QApplication>
#include <QTimer>

#include <memory>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("Qorvix");
    QApplication::setApplicationVersion(QORVIX_VERSION);
    QApplication::setWindowIcon(MakeAppIcon(AppIcon::Program));

    const std::unique_ptr<SettingsStore> settings = MakeUserSettings();
    Registry registry(*settings);
    const TempFolder tempFolder;
    Logbook logbook;
    frmMain window(logbook, registry, tempFolder, CodePage::OfUser());
    window.show();
    std::vector<std::string> arguments;
    for (const QString& argument : QApplication::arguments().mid(1))
        arguments.push_back(argument.toStdString());
    QTimer::singleShot(0, &window, [&] { window.FirstActivation(arguments); });
    return QApplication::exec();
}
