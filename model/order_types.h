#pragma once

// The host order types: how an algorithm's child orders are priced. One row says who may use a type, how it
// marks an order and whether the order keeps its price.

#include <cstdint>
#include <span>
#include <string_view>

namespace algo::model {

/// Prices nearer to zero than this count as no price; also the distance within which prices count as equal.
inline constexpr double PriceEpsilon = 1e-7;

// Order type flags. The low five bits are the basic type number.
inline constexpr std::uint32_t BasicTypeMask = 31;
inline constexpr std::uint32_t MarketBit = 1;
inline constexpr std::uint32_t StopMarketBit = 4;
inline constexpr std::uint32_t AtAuctionBit = 0x200;
inline constexpr std::uint32_t EnhancedLimitBit = 0x400;
inline constexpr std::uint32_t StopLimitBit = 0x800;
inline constexpr std::uint32_t TriggerAboveBit =
    0x800000;  ///< the trigger price lay above the reference price
inline constexpr std::uint32_t TriggerBelowBit =
    0x1000000;  ///< the trigger price lay below the reference price
// Auction flags.
inline constexpr std::uint32_t LimitAtCloseBit = 0x1000;
inline constexpr std::uint32_t MarketAtOpenBit = 0x4000;
inline constexpr std::uint32_t MarketAtCloseBit = 0x8000;
// Algo flags.
inline constexpr std::uint32_t NativeAlgoBit = 0x8000;

/// Which flag word of an order a type's bits go into.
enum class TFlagWord : std::uint8_t { None, OrderType, Auction };

struct TOrderTypeRow {
  std::string_view code;        ///< as the configuration has it
  std::string_view right;       ///< the user right that it needs; empty for none
  std::string_view resourceId;  ///< as the form shows and lists it
  bool keepsPrice;              ///< false sets the price to 0, on the form and on the order
  TFlagWord word;
  std::uint32_t bits;
  bool autoTrigger;  ///< the trigger bits are added too
};

/// All host order types, in the order of the catalogue.
std::span<const TOrderTypeRow> OrderTypeRows();

/// The type of that code or resource id, whatever its letter case; nullptr when there is none.
const TOrderTypeRow* FindOrderTypeByCode(std::string_view code);
const TOrderTypeRow* FindOrderTypeById(std::string_view resourceId);

/// The trigger bits of a stop limit order whose market data fields 3, 17 and 31 are these texts; 0 for other
/// orders and without a readable reference price. A trigger at the reference price gives the stop limit bit
/// itself. Stop market orders get none, which is meant.
std::uint32_t AutoTriggerBits(std::uint32_t typeFlags, double stopPrice, std::string_view field3,
                              std::string_view field17, std::string_view field31);

/// The resource id of the type that an order's flags and price show; the limit type when they show no other.
std::string_view DisplayOrderType(std::uint32_t typeFlags, std::uint32_t auctionFlags, double price);

/// Whether an order of these flags has a price that may be set.
bool PriceMayBeSet(std::uint32_t typeFlags, std::uint32_t auctionFlags, double price);

}  // namespace algo::model
