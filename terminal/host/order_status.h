#pragma once

// The codes by which this terminal tells how far an order has come. The module knows of them only that an
// order with Filled, Cancelled, Expired or Rejected will trade no more.

#include <cstdint>
#include <string_view>

namespace algo::terminal {

namespace status {

inline constexpr std::int32_t Accepted = 0;  ///< taken, not worked on yet
inline constexpr std::int32_t Working = 1;
inline constexpr std::int32_t PartlyFilled = 2;
inline constexpr std::int32_t Filled = 3;
inline constexpr std::int32_t Cancelled = 4;
inline constexpr std::int32_t Expired = 7;  ///< its end time came before it was filled
inline constexpr std::int32_t Rejected = -1;

}  // namespace status

/// Whether an order with that status will trade no more.
constexpr bool IsDone(std::int32_t code) {
  return code == status::Filled || code == status::Cancelled || code == status::Expired ||
         code == status::Rejected;
}

/// The named text property in which the terminal keeps the average price of what was filled, as a plain
/// number; empty while nothing is.
inline constexpr std::string_view AveragePriceProperty = "AveragePrice";

}  // namespace algo::terminal
