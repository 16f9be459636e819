// SPDX-License-Identifier: MIT
#include "list/RowIcons.h"

#include "list/Pictures.h"

RowIcons::RowIcons() {
    // The linker drops a static library's resources unless the code asks for them.
    Q_INIT_RESOURCE(rowicons);
    for (std::size_t i = 0; i < RowIconPaths.size(); ++i) {
        AddPicture(icons_[i], RowIconPaths[i]);
        // Without its own picture, a selected row would get one in shades of the selection.
        AddPicture(icons_[i], RowIconPaths[i], QIcon::Selected);
    }
}

QIcon RowIcons::Icon(int image) const {
    if (image < 1 || image > static_cast<int>(icons_.size()))
        return {};
    return icons_[static_cast<std::size_t>(image - 1)];
}
