// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

class QHeaderView;
class QWidget;
class Registry;

// The place and size of the main window, which the settings keep in twips.
class WindowPlacement {
  public:
    // Places the window as it was left, as far as the present screens allow. A window that no screen would
    // show goes to the default place.
    void Load(const Registry& registry, QWidget& window);

    // Stores the place and size. Values that the person did not change stay stored as they were, also if the
    // screens did not allow them. A maximised or minimised window keeps the normal place that is stored.
    void Save(Registry& registry, const QWidget& window) const;

  private:
    // Left, top, width and height.
    std::array<std::int32_t, 4> loaded_{}; // twips
    std::array<int, 4> shown_{};           // pixels
};

// The column widths of the main window's list, in the same way.
void LoadColumnWidths(const Registry& registry, QHeaderView& header);
void SaveColumnWidths(Registry& registry, const QHeaderView& header);
