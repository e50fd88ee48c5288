#pragma once

// The bits of an order's flag words. Host and module mean the same by them; neither adds bits of its own.

#include <cstdint>

namespace algo::host::flags {

// Order type flags (TCustomOrder::orderTypeFlags). The low five bits are one number, the basic type; the
// others are bits.
inline constexpr std::uint32_t BasicTypeMask = 31;
inline constexpr std::uint32_t Market = 1;      ///< a basic type
inline constexpr std::uint32_t StopMarket = 4;  ///< a basic type
inline constexpr std::uint32_t AtAuction = 0x200;
inline constexpr std::uint32_t EnhancedLimit = 0x400;
inline constexpr std::uint32_t StopLimit = 0x800;
inline constexpr std::uint32_t TriggerAbove = 0x800000;   ///< the trigger price lay above the reference price
inline constexpr std::uint32_t TriggerBelow = 0x1000000;  ///< the trigger price lay below the reference price

// Auction flags (TCustomOrder::auctionFlags).
inline constexpr std::uint32_t LimitAtClose = 0x1000;
inline constexpr std::uint32_t MarketAtOpen = 0x4000;
inline constexpr std::uint32_t MarketAtClose = 0x8000;

// Algo flags (TCustomOrder::algoFlags).
inline constexpr std::uint32_t NativeAlgo = 0x8000;

}  // namespace algo::host::flags
