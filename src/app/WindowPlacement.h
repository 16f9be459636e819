// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

class QHeaderView;
class QWidget;
class Registry;

// The place and size of a window, which the settings keep in twips under its name: "Main.Left" and so on,
// "MainIsMaximized".
class WindowPlacement {
  public:
    // The defaults are left, top, width and height, in twips.
    WindowPlacement(std::string_view name, const std::array<int, 4>& defaults)
        : name_(name), defaults_(defaults) {}

    // Places the window as it was left, as far as the present screens allow. A window that no screen would
    // show goes to the default place.
    void Load(const Registry& registry, QWidget& window);

    // Stores the place and size. Values that the person did not change stay stored as they were, also if the
    // screens did not allow them. A maximised or minimised window keeps the normal place that is stored.
    void Save(Registry& registry, const QWidget& window) const;

  private:
    std::string SettingOf(std::size_t length) const;

    std::string name_;
    std::array<int, 4> defaults_; // twips
    // Left, top, width and height.
    std::array<std::int32_t, 4> loaded_{}; // twips
    std::array<int, 4> shown_{};           // pixels
};

// The main window's defaults.
inline constexpr std::array<int, 4> MainWindowPlace{100, 100, 14000, 12000};

// The column widths of the main window's list, in the same way.
void LoadColumnWidths(const Registry& registry, QHeaderView& header);
void SaveColumnWidths(Registry& registry, const QHeaderView& header);
