#pragma once

// Between the prices that the trader sees and those that orders carry. Prices are shown multiplied and
// written into orders divided by the item's multiplier; one test decides everywhere whether there is one.

#include <optional>

#include "plugin/host_contract/market_data.h"

namespace algo::views::entry {

/// The item's price multiplier; nothing when there is no item, or it is not live, or it has none. A text that
/// is no number counts as 1.
std::optional<double> PriceMultiplier(const host::TMarketDataItem* item);

/// The price to show for a price as the market has it.
double PriceToShow(double raw, const host::TMarketDataItem* item);

/// The price to write into an order for a price as shown: divided by the multiplier, unless that is 0. Throws
/// EConversionError when that gives no finite number.
double PriceForOrder(double shown, const host::TMarketDataItem* item);

}  // namespace algo::views::entry
