// SPDX-License-Identifier: MIT
#include "app/AppIcons.h"

#include "list/Pictures.h"

QIcon MakeAppIcon(AppIcon icon) {
    // The linker drops a static library's resources unless somebody asks for them.
    Q_INIT_RESOURCE(icons);
    QIcon made;
    AddPicture(made, AppIconPaths[static_cast<std::size_t>(icon)]);
    return made;
}
