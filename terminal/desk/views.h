#pragma once

// The numbers by which the desktop's own views name themselves in what they post.

#include <cstdint>

namespace algo::terminal::view_id {

inline constexpr std::int32_t MarketWatch = 201;
inline constexpr std::int32_t OrderBlotter = 202;

}  // namespace algo::terminal::view_id
