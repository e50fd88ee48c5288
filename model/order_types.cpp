#include "model/order_types.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "plugin/host_contract/flags/order_flags.h"
#include "text/number_text.h"
#include "text/text.h"

namespace algo::model {

namespace {

using enum TFlagWord;
using enum TPriceTold;

// Orders at auction share one bit; whether they carry a price tells AO from ALO.
// clang-format off
constexpr auto Rows = std::to_array<TOrderTypeRow>({
    {"LO", "", "Res_OrderType_Limit", true, None, 0},
    {.code = "MO", .right = "OEMarketOrder", .resourceId = "Res_OrderType_Market", .keepsPrice = false,
     .word = OrderType, .bits = host::flags::Market, .marketChildren = true},
    {.code = "StopMarket", .right = "OEStopM", .resourceId = "Res_OrderType_StopMarket", .keepsPrice = false,
     .word = OrderType, .bits = host::flags::StopMarket, .autoTrigger = true},
    {.code = "StopLimit", .right = "OEStopL", .resourceId = "Res_OrderType_StopLimit", .keepsPrice = true,
     .word = OrderType, .bits = host::flags::StopLimit, .autoTrigger = true},
    {"AO", "OEAO", "Res_OrderType_AO", false, OrderType, host::flags::AtAuction, WithoutPrice},
    {"ALO", "OEALO", "Res_OrderType_ALO", true, OrderType, host::flags::AtAuction, WithPrice},
    {"ELO", "OEEnhanced", "Res_OrderType_ELO", true, OrderType, host::flags::EnhancedLimit},
    {"MOO", "OEMarketOnOpen", "Res_OrderType_MOO", false, Auction, host::flags::MarketAtOpen},
    {"MOC", "OEMarketOnClose", "Res_OrderType_MOC", false, Auction, host::flags::MarketAtClose},
    {"LOC", "OELOC", "Res_OrderType_LOC", true, Auction, host::flags::LimitAtClose},
});
// clang-format on

constexpr bool RowsAreSound() {
  for (std::size_t i = 0; i < Rows.size(); ++i) {
    if ((Rows[i].word == None) != (Rows[i].bits == 0)) return false;
    for (std::size_t j = i + 1; j < Rows.size(); ++j) {
      if (Rows[i].code == Rows[j].code || Rows[i].resourceId == Rows[j].resourceId) return false;
      // The type flags are read before the auction flags, so their types come first.
      if (Rows[i].word == Auction && Rows[j].word == OrderType) return false;
      const bool sameBits = Rows[i].word == Rows[j].word && Rows[i].bits == Rows[j].bits;
      if (sameBits && (Rows[i].priceTold == Any || Rows[i].priceTold == Rows[j].priceTold)) return false;
    }
  }
  return Rows.front().word == None;
}
static_assert(RowsAreSound(), "two types look alike, or a type without bits is not the first one");

// Whether flags and price show the type; the one without bits shows in none.
bool Shows(const TOrderTypeRow& row, std::uint32_t typeFlags, std::uint32_t auctionFlags, double price) {
  if (row.word == None) return false;
  // A basic type is a number in the low bits; everything else is a bit of its own.
  const bool basicType = row.word == OrderType && (row.bits & host::flags::BasicTypeMask) != 0;
  const std::uint32_t mask = basicType ? host::flags::BasicTypeMask : row.bits;
  const std::uint32_t flags = row.word == OrderType ? typeFlags : auctionFlags;
  if ((flags & mask) != row.bits) return false;
  const bool hasPrice = std::abs(price) > PriceEpsilon;
  return row.priceTold == Any || hasPrice == (row.priceTold == WithPrice);
}

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
  if ((typeFlags & host::flags::StopLimit) == 0) return 0;
  const bool noPrice = text::NumberOr(field3, 0) == 0 && text::NumberOr(field17, 0) == 0;
  const auto reference = text::ParseNumber(noPrice ? field31 : field3);
  if (!reference) return 0;
  if (stopPrice > *reference) return host::flags::TriggerAbove;
  if (stopPrice == *reference) return host::flags::StopLimit;
  return *reference > stopPrice ? host::flags::TriggerBelow : 0;
}

std::string_view DisplayOrderType(std::uint32_t typeFlags, std::uint32_t auctionFlags, double price) {
  const auto shown = std::find_if(Rows.begin(), Rows.end(), [&](const TOrderTypeRow& row) {
    return Shows(row, typeFlags, auctionFlags, price);
  });
  return shown == Rows.end() ? Rows.front().resourceId : shown->resourceId;
}

bool PriceMayBeSet(std::uint32_t typeFlags, std::uint32_t auctionFlags, double price) {
  return std::none_of(Rows.begin(), Rows.end(), [&](const TOrderTypeRow& row) {
    return !row.keepsPrice && Shows(row, typeFlags, auctionFlags, price);
  });
}

}  // namespace algo::model
