// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

class QHeaderView;
class QWidget;
class Registry;

// Where the main window stands: kept in the settings, in twips.
class WindowPlacement {
  public:
    // Places the window as it was left, or as much so as the screens that are there allow. One that no screen
    // shows any more is brought back to the default place.
    void Load(const Registry& registry, QWidget& window);

    // What the person did not change is stored as it was, also where the screens did not allow it. A
    // maximised or minimised window keeps the normal place that is stored.
    void Save(Registry& registry, const QWidget& window) const;

  private:
    // Left, top, width and height.
    std::array<std::int32_t, 4> loaded_{}; // twips
    std::array<int, 4> shown_{};           // pixels
};

// How wide the columns of the main window's list are, in the same way.
void LoadColumnWidths(const Registry& registry, QHeaderView& header);
void SaveColumnWidths(Registry& registry, const QHeaderView& header);
