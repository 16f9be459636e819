// SPDX-License-Identifier: MIT
#include "app/AppIcons.h"

QIcon MakeAppIcon(AppIcon icon) {
    // The linker drops a static library's resources unless somebody asks for them.
    Q_INIT_RESOURCE(icons);
    return QIcon(AppIconPaths[static_cast<std::size_t>(icon)]);
}
