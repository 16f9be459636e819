// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"

#include <QIcon>

#include <array>

class QTreeWidgetItem;

// A filter as a row of the filter list.
namespace FilterColumns {
inline constexpr int Type = 0; // with the icon of the action, and the check box of an active filter
inline constexpr int String = 1;
inline constexpr int Name = 2;
inline constexpr int Emitter = 3;
inline constexpr int Count = 4;
} // namespace FilterColumns

// Writes filters to rows and reads them back. The icon's shape shows the action; its tool tip and the row's
// accessible text name it.
class FilterRows {
  public:
    FilterRows(const FilterTypeLabels& labels, Language language);

    // A stored type without a label shows its number.
    void Write(const FilterDefinition& filter, QTreeWidgetItem& row) const;

    // The filter that Write wrote, with the present state of the check box. Reads the type back from its
    // label.
    FilterDefinition Read(const QTreeWidgetItem& row) const;

  private:
    FilterTypeLabels labels_;
    Language language_;
    std::array<QIcon, 3> icons_; // by action, from 1
};
