#pragma once

// Between the prices that the trader sees and those that orders carry. Prices are shown multiplied and
// written into orders divided by the item's multiplier; one test decides everywhere whether there is one.

#include <optional>

#include "plugin/host_contract/market_data.h"

namespace algo::views::entry {

/// The item's price multiplier; nothing when there is no item, or it is not live, or it has none. A text that
/// is no number counts as 1.
std::optional<double> PriceMultiplier(const host::TMarketDataItem* item);

/// The multiplier by which a price can be divided; nothing for one that counts as 0 too.
std::optional<double> PriceDivisor(const host::TMarketDataItem* item);

/// The price to show for a price as the market has it, to 15 digits: more are noise of the multiplication.
double PriceToShow(double raw, std::optional<double> multiplier);

/// The price to write into an order for a price as shown. Rounded to 15 digits where the rounded one shows as
/// the same price, so that 7.85 comes back from what it was shown as. Throws EConversionError when it is not
/// finite.
double PriceForOrder(double shown, std::optional<double> divisor);

}  // namespace algo::views::entry
