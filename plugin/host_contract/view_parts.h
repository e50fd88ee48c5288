#pragma once

// What a view brings along for the window or panel in which the host puts it, as plain values.

#include <cstdint>
#include <string>
#include <vector>

namespace algo::host {

/// A picture, row by row from the top left; without pixels it is none.
struct TImage {
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::vector<std::uint32_t> pixels;  ///< width × height of them, each 0xAARRGGBB

  bool operator==(const TImage&) const = default;
};

/// A button that a view adds to its title bar.
struct TCaptionButton {
  std::int32_t id = 0;      ///< what the view knows it by
  std::string hint;         ///< the tool tip, in the user's language
  std::int32_t image = -1;  ///< its place in the view's image list; -1 for none

  bool operator==(const TCaptionButton&) const = default;
};

/// Something that a view does at the press of keys.
struct TShortcut {
  std::int32_t action = 0;  ///< what the view knows it by
  std::string caption;      ///< what it does, in the user's language
  std::string keys;         ///< the keys that the view proposes, say "Ctrl+Alt+O"; empty for none

  bool operator==(const TShortcut&) const = default;
};

/// The side of the main window at which a new instance docks.
enum class TDockPosition : std::uint8_t { HostsChoice, Left, Top, Right, Bottom };

}  // namespace algo::host
