#pragma once

// The host order types: how an algorithm's child orders are priced. One row says who may use a type, how it
// marks an order and whether the order keeps its price; how an order's flags are read back follows from the
// same row.

#include <cstdint>
#include <span>
#include <string_view>

namespace algo::model {

/// Prices nearer to zero than this count as no price; also the distance within which prices count as equal.
inline constexpr double PriceEpsilon = 1e-7;

/// Which flag word of an order a type's bits go into.
enum class TFlagWord : std::uint8_t { None, OrderType, Auction };

/// Which of the orders that carry a type's bits are of the type: two types share one bit, and the price tells
/// them apart.
enum class TPriceTold : std::uint8_t { Any, WithPrice, WithoutPrice };

struct TOrderTypeRow {
  std::string_view code;        ///< as the configuration has it
  std::string_view right;       ///< the user right that it needs; empty for none
  std::string_view resourceId;  ///< as the form shows and lists it
  bool keepsPrice;              ///< false sets the price to 0, on the form and on the order
  TFlagWord word;
  std::uint32_t bits;
  TPriceTold priceTold = TPriceTold::Any;
  bool autoTrigger = false;     ///< the trigger bits are added too
  bool marketChildren = false;  ///< the parameter text calls the engine's child orders market orders
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
/// The order type flags count before the auction flags.
std::string_view DisplayOrderType(std::uint32_t typeFlags, std::uint32_t auctionFlags, double price);

/// Whether an order of these flags has a price that may be set: not where they show any type that keeps none.
bool PriceMayBeSet(std::uint32_t typeFlags, std::uint32_t auctionFlags, double price);

}  // namespace algo::model
