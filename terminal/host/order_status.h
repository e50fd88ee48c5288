#pragma once

// This terminal's order status codes. The module knows of them only that an order that is Filled, Cancelled,
// Expired or Rejected will not trade any more.

#include <cstdint>
#include <string_view>

namespace algo::terminal {

namespace status {

inline constexpr std::int32_t Accepted = 0;  ///< taken, not worked on yet
inline constexpr std::int32_t Working = 1;
inline constexpr std::int32_t PartlyFilled = 2;
inline constexpr std::int32_t Filled = 3;
inline constexpr std::int32_t Cancelled = 4;
inline constexpr std::int32_t Expired = 7;  ///< its end time passed before it was filled
inline constexpr std::int32_t Rejected = -1;

}  // namespace status

/// Whether an order with that status will not trade any more.
constexpr bool IsDone(std::int32_t code) {
  return code == status::Filled || code == status::Cancelled || code == status::Expired ||
         code == status::Rejected;
}

/// The named text property that holds the average price of what was filled, as a plain number; empty while
/// nothing is filled.
inline constexpr std::string_view AveragePriceProperty = "AveragePrice";

}  // namespace algo::terminal
