// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

class QHeaderView;
class Registry;

// The settings hold the widths of a dialog list's columns in twips, under the dialog's sub-key, as
// "FilterCol(1).Width" and so on. Their defaults:
inline constexpr std::array<std::int32_t, 4> FilterColumnWidths{2000, 2000, 780, 780};
inline constexpr std::array<std::int32_t, 2> StringFilterColumnWidths{1300, 3500};

// The header must have as many columns as there are defaults.
void LoadDialogColumns(const Registry& registry, std::string_view subKey,
                       std::span<const std::int32_t> defaults, QHeaderView& header);
void SaveDialogColumns(Registry& registry, std::string_view subKey, std::span<const std::int32_t> defaults,
                       const QHeaderView& header);
