// SPDX-License-Identifier: MIT
#include "dialogs/DialogColumns.h"

#include "dialogs/ScreenRoom.h"
#include "list/Twips.h"
#include "settings/Registry.h"

#include <QHeaderView>

#include <string>

namespace {
std::string WidthName(std::size_t column) { return "FilterCol(" + std::to_string(column + 1) + ").Width"; }
} // namespace

void LoadDialogColumns(const Registry& registry, std::string_view subKey,
                       std::span<const std::int32_t> defaults, QHeaderView& header) {
    for (std::size_t column = 0; column < defaults.size(); ++column)
        header.resizeSection(static_cast<int>(column), ColumnWidth(registry.ReadSettingLong(
                                                           WidthName(column), defaults[column], subKey)));
}

void SaveDialogColumns(Registry& registry, std::string_view subKey, std::span<const std::int32_t> defaults,
                       const QHeaderView& header) {
    const Registry::Transaction transaction(registry);
    for (std::size_t column = 0; column < defaults.size(); ++column) {
        const int stored = registry.ReadSettingLong(WidthName(column), defaults[column], subKey);
        registry.WriteSetting(WidthName(column),
                              ColumnTwips(header.sectionSize(static_cast<int>(column)), stored),
                              SettingType::Integer, subKey);
    }
}
