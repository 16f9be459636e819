// SPDX-License-Identifier: MIT
#pragma once

class QHeaderView;
class QWidget;
class Registry;

// Where the main window stands and how wide the columns of its list are: kept in the settings, in twips.

// Places the window as it was left. One that no screen shows any more is brought back to the default place.
void LoadPlacement(const Registry& registry, QWidget& window);
void LoadColumnWidths(const Registry& registry, QHeaderView& header);

// A maximised or minimised window keeps the normal place that is stored.
void SavePlacement(Registry& registry, const QWidget& window);
void SaveColumnWidths(Registry& registry, const QHeaderView& header);
