#pragma once

// What sets the frames apart that use the entry form: a row each, given to the frame when it is made.

#include <string_view>

namespace algo::views::entry {

struct TFramePurpose {
  std::string_view className;  ///< names the kind of frame to hosts
  bool takesCopies;            ///< orders and prices picked in other views are copied into the form
  bool showsOneOrder;  ///< the form shows a given order, so that no other algorithm stands in for one not
                       ///< offered
};

inline constexpr TFramePurpose EntryPurpose{"TAlgoOrderEntryFrame", true, false};
inline constexpr TFramePurpose ChangePurpose{"TAlgoOrderChangeFrame", false, true};
inline constexpr TFramePurpose WorkPurpose{"TAlgoWorkOrderFrame", false, true};

}  // namespace algo::views::entry
