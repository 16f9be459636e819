// SPDX-License-Identifier: MIT
#include "list/RowIcons.h"

#include <algorithm>

RowIcons::RowIcons() {
    // The linker drops a static library's resources unless somebody asks for them.
    Q_INIT_RESOURCE(rowicons);
    std::transform(RowIconPaths.begin(), RowIconPaths.end(), icons_.begin(),
                   [](const char* path) { return QIcon(path); });
}

QIcon RowIcons::Icon(int image) const {
    if (image < 1 || image > static_cast<int>(icons_.size()))
        return {};
    return icons_[static_cast<std::size_t>(image - 1)];
}
