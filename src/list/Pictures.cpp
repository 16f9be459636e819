// SPDX-License-Identifier: MIT
#include "list/Pictures.h"

#include <QFile>

void AddPicture(QIcon& icon, const QString& drawing, QIcon::Mode mode) {
    if (QFile::exists(drawing)) {
        icon.addFile(drawing, {}, mode);
        return;
    }
    for (const int size : PictureSizes) {
        const QString picture = QString("%1.%2.png").arg(drawing).arg(size);
        if (QFile::exists(picture))
            icon.addFile(picture, {}, mode);
    }
}
