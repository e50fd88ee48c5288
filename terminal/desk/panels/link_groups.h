#pragma once

// The link groups that views of the desktop can belong to: what the trader picks in one view goes to the
// views of its group.

#include <array>
#include <cstddef>
#include <string_view>

namespace algo::terminal::desk::panels {

struct TLinkGroup {
  std::string_view id;  ///< as views know it and workspaces store it; empty for no group
  const char* textKey;
};

/// No group, then the groups in the order of their colours in a skin (TSkin::links).
inline constexpr std::array LinkGroups{TLinkGroup{"", "None"}, TLinkGroup{"Red", "Red"},
                                       TLinkGroup{"Green", "Green"}, TLinkGroup{"Blue", "Blue"},
                                       TLinkGroup{"Yellow", "Yellow"}};

}  // namespace algo::terminal::desk::panels
