#pragma once

// What sets the frames apart that use the entry form: a row each, given to the frame when it is made.

#include <cstdint>
#include <string_view>

namespace algo::views::entry {

/// Where the list of host order types has the type of the order that a form shows.
enum class TOwnType : std::uint8_t {
  NotShown,       ///< the form shows no order
  BehindOffered,  ///< last, where the exchange or the user's rights do not offer it
  First,          ///< first in any case
};

struct TFramePurpose {
  std::string_view className;  ///< names the kind of frame to hosts
  bool takesCopies;            ///< orders and prices picked in other views are copied into the form
  bool showsOneOrder;          ///< the form shows a given order: no other algorithm stands in for its own
  TOwnType ownType;            ///< the order's own type is on offer, so that no other stands in for it either
};

inline constexpr TFramePurpose EntryPurpose{"TAlgoOrderEntryFrame", true, false, TOwnType::NotShown};
inline constexpr TFramePurpose ChangePurpose{"TAlgoOrderChangeFrame", false, true, TOwnType::BehindOffered};
inline constexpr TFramePurpose WorkPurpose{"TAlgoWorkOrderFrame", false, true, TOwnType::First};

}  // namespace algo::views::entry
