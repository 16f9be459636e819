// SPDX-License-Identifier: MIT
#pragma once

#include "support/TemporaryFolder.h"

#include <QDir>
#include <QSize>

#include <string>
#include <vector>

// Screens for a test, side by side from the left; the first one is the primary. Make it before the
// application; it must live as long.
class Screens {
  public:
    explicit Screens(const std::vector<QSize>& sizes) {
        std::string list;
        int left = 0;
        for (const QSize& size : sizes) {
            list += (list.empty() ? "" : ",") + std::string(R"({"name":"at )") + std::to_string(left) +
                    R"(","x":)" + std::to_string(left) + R"(,"y":0,"width":)" + std::to_string(size.width()) +
                    R"(,"height":)" + std::to_string(size.height()) +
                    R"(,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1})";
            left += size.width();
        }
        Folder.Write("screens.json", R"({"screens":[)" + list + "]}");
        // Its name has to do without a drive, which would end with the ":" that parts the words here.
        QDir::setCurrent(QString::fromStdString(Folder.Path().string()));
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=screens.json");
    }
    ~Screens() { QDir::setCurrent(Before); }
    Screens(const Screens&) = delete;
    Screens& operator=(const Screens&) = delete;

  private:
    const QString Before = QDir::currentPath();
    const TemporaryFolder Folder;
};
