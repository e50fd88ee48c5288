#pragma once

// The columns of the market watch: where each takes its value from.

#include <array>
#include <cstddef>
#include <cstdint>

#include "plugin/host_contract/market_data.h"
#include "terminal/paper/market_fields.h"

namespace algo::terminal::desk::market {

enum class TMarketColumnKind : std::uint8_t {
  Symbol,
  Name,
  Exchange,
  Price,   ///< shown times the item's multiplier
  Change,  ///< of that price against the reference price, in per cent
  Amount,
};

struct TMarketColumn {
  const char* textKey;
  TMarketColumnKind kind;
  std::int32_t field;  ///< of the item; 0 for what does not change
  std::int32_t width;  ///< in characters
};

inline constexpr std::array MarketColumns{
    TMarketColumn{"Symbol", TMarketColumnKind::Symbol, 0, 9},
    TMarketColumn{"Name", TMarketColumnKind::Name, 0, 34},
    TMarketColumn{"Exchange", TMarketColumnKind::Exchange, 0, 10},
    TMarketColumn{"Last", TMarketColumnKind::Price, host::PriceField, 10},
    TMarketColumn{"Change", TMarketColumnKind::Change, host::PriceField, 9},
    TMarketColumn{"Bid", TMarketColumnKind::Price, paper::field::Bid, 10},
    TMarketColumn{"Ask", TMarketColumnKind::Price, paper::field::Ask, 10},
    TMarketColumn{"Bid size", TMarketColumnKind::Amount, paper::field::BidSize, 11},
    TMarketColumn{"Ask size", TMarketColumnKind::Amount, paper::field::AskSize, 11},
    TMarketColumn{"Volume", TMarketColumnKind::Amount, paper::field::Volume, 13},
};

}  // namespace algo::terminal::desk::market
