#include "model/order_types.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "text/number_text.h"
#include "text/text.h"

namespace algo::model {

namespace {

using enum TFlagWord;

// Orders at auction share one bit; whether they carry a price tells AO from ALO.
constexpr std::array<TOrderTypeRow, 10> Rows{{
    {"LO", "", "Res_OrderType_Limit", true, None, 0, false},
    {"MO", "OEMarketOrder", "Res_OrderType_Market", false, OrderType, MarketBit, false},
    {"StopMarket", "OEStopM", "Res_OrderType_StopMarket", false, OrderType, StopMarketBit, true},
    {"StopLimit", "OEStopL", "Res_OrderType_StopLimit", true, OrderType, StopLimitBit, true},
    {"AO", "OEAO", "Res_OrderType_AO", false, OrderType, AtAuctionBit, false},
    {"ALO", "OEALO", "Res_OrderType_ALO", true, OrderType, AtAuctionBit, false},
    {"ELO", "OEEnhanced", "Res_OrderType_ELO", true, OrderType, EnhancedLimitBit, false},
    {"MOO", "OEMarketOnOpen", "Res_OrderType_MOO", false, Auction, MarketAtOpenBit, false},
    {"MOC", "OEMarketOnClose", "Res_OrderType_MOC", false, Auction, MarketAtCloseBit, false},
    {"LOC", "OELOC", "Res_OrderType_LOC", true, Auction, LimitAtCloseBit, false},
}};

// How an order's flags are read back, first match first: the type flags count before the auction flags. A row
// without a mask asks for the bit, one with a mask for the whole number under it.
struct TDisplayRow {
  TFlagWord word;
  std::uint32_t mask;
  std::uint32_t value;
  std::string_view id;
  std::string_view idWithoutPrice;
};
constexpr TDisplayRow Bit(TFlagWord word, std::uint32_t bit, std::string_view id) {
  return {word, bit, bit, id, id};
}
constexpr std::array DisplayRows{
    TDisplayRow{OrderType, BasicTypeMask, MarketBit, "Res_OrderType_Market", "Res_OrderType_Market"},
    TDisplayRow{OrderType, BasicTypeMask, StopMarketBit, "Res_OrderType_StopMarket",
                "Res_OrderType_StopMarket"},
    Bit(OrderType, StopLimitBit, "Res_OrderType_StopLimit"),
    TDisplayRow{OrderType, AtAuctionBit, AtAuctionBit, "Res_OrderType_ALO", "Res_OrderType_AO"},
    Bit(OrderType, EnhancedLimitBit, "Res_OrderType_ELO"),
    Bit(Auction, MarketAtOpenBit, "Res_OrderType_MOO"),
    Bit(Auction, MarketAtCloseBit, "Res_OrderType_MOC"),
    Bit(Auction, LimitAtCloseBit, "Res_OrderType_LOC"),
};

const TOrderTypeRow* FindBy(std::string_view TOrderTypeRow::*name, std::string_view wanted) {
  const auto found = std::find_if(Rows.begin(), Rows.end(), [&](const TOrderTypeRow& row) {
    return text::EqualNoCase(row.*name, wanted);
  });
  return found == Rows.end() ? nullptr : &*found;
}

}  // namespace

std::span<const TOrderTypeRow> OrderTypeRows() { return Rows; }

const TOrderTypeRow* FindOrderTypeByCode(std::string_view code) { return FindBy(&TOrderTypeRow::code, code); }

const TOrderTypeRow* FindOrderTypeById(std::string_view resourceId) {
  return FindBy(&TOrderTypeRow::resourceId, resourceId);
}

std::uint32_t AutoTriggerBits(std::uint32_t typeFlags, double stopPrice, std::string_view field3,
                              std::string_view field17, std::string_view field31) {
  if ((typeFlags & StopLimitBit) == 0) return 0;
  const bool noPrice = text::NumberOr(field3, 0) == 0 && text::NumberOr(field17, 0) == 0;
  const auto reference = text::ParseNumber(noPrice ? field31 : field3);
  if (!reference) return 0;
  if (stopPrice > *reference) return TriggerAboveBit;
  if (stopPrice == *reference) return StopLimitBit;
  return *reference > stopPrice ? TriggerBelowBit : 0;
}

std::string_view DisplayOrderType(std::uint32_t typeFlags, std::uint32_t auctionFlags, double price) {
  for (const TDisplayRow& row : DisplayRows) {
    const std::uint32_t word = row.word == OrderType ? typeFlags : auctionFlags;
    if ((word & row.mask) == row.value) return std::abs(price) > PriceEpsilon ? row.id : row.idWithoutPrice;
  }
  return Rows.front().resourceId;
}

bool PriceMayBeSet(std::uint32_t typeFlags, std::uint32_t auctionFlags, double price) {
  const std::uint32_t basicType = typeFlags & BasicTypeMask;
  const bool market = basicType == MarketBit || basicType == StopMarketBit;
  const bool auctionWithoutPrice = (typeFlags & AtAuctionBit) != 0 && std::abs(price) <= PriceEpsilon;
  const bool atOpenOrClose = (auctionFlags & (MarketAtOpenBit | MarketAtCloseBit)) != 0;
  return !market && !auctionWithoutPrice && !atOpenOrClose;
}

}  // namespace algo::model
