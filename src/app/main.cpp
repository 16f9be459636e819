// SPDX-License-Identifier: MIT
#include "app/frmMain.h"

#include <QApplication>
#include <QTimer>

#include <memory>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("Qorvix");
    QApplication::setApplicationVersion(QORVIX_VERSION);

    const std::unique_ptr<SettingsStore> settings = MakeUserSettings();
    Registry registry(*settings);
    Logbook logbook;
    frmMain window(logbook, registry, CodePage::OfUser());
    window.show();
    QTimer::singleShot(0, &window, [&window] { window.OpenLogbooks(QApplication::arguments().mid(1)); });
    return QApplication::exec();
}
