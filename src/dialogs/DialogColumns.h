// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

class QHeaderView;
class Registry;

// The widths of a dialog list's columns lie under the dialog's sub-key as "FilterCol(1).Width" and so on, in
// twips. Their defaults:
inline constexpr std::array<std::int32_t, 4> FilterColumnWidths{2000, 2000, 780, 780};
inline constexpr std::array<std::int32_t, 2> StringFilterColumnWidths{1300, 3500};

// There are as many columns as defaults.
void LoadDialogColumns(const Registry& registry, std::string_view subKey,
                       std::span<const std::int32_t> defaults, QHeaderView& header);
void SaveDialogColumns(Registry& registry, std::string_view subKey, std::span<const std::int32_t> defaults,
                       const QHeaderView& header);
