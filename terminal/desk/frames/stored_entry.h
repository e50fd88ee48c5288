#pragma once

// One entry view as it is stored in a workspace.

#include <string>

namespace algo::terminal::desk::frames {

struct TStoredEntry {
  std::string name;    ///< of its panel
  std::string group;   ///< its link group
  std::string layout;  ///< what the module gave as its layout text
  std::string data;    ///< the view's custom data; empty for none

  bool operator==(const TStoredEntry&) const = default;
};

}  // namespace algo::terminal::desk::frames
