// SPDX-License-Identifier: MIT
#pragma once

#include "support/TemporaryFolder.h"

#include <QByteArray>
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
        const std::string file = Folder.Write("screens.json", R"({"screens":[)" + list + "]}");
        qputenv("QT_QPA_PLATFORM", QByteArray::fromStdString("offscreen:configfile=" + file));
    }

  private:
    TemporaryFolder Folder;
};
