#pragma once

// Along which grids the trader steps prices and quantities: the ticks and the lots of the market's
// instruments.

#include <string_view>

#include "forms/step_grid.h"
#include "terminal/host/host_data.h"
#include "terminal/paper/market_tables.h"

namespace algo::terminal::desk {

/// The ticks of the instrument's price as it is shown, down to the lowest above 0. Empty for a symbol that
/// the tables do not know.
forms::TStepGrid PriceGridOf(const paper::TMarketTables& tables, std::string_view symbol);

/// The multiples of the instrument's lot. Empty for a symbol that the tables do not know.
forms::TStepGrid QuantityGridOf(const paper::TMarketTables& tables, std::string_view symbol);

/// Gives the host the grids of these tables, which outlive its data.
void FillStepGrids(THostData& data, const paper::TMarketTables& tables);

}  // namespace algo::terminal::desk
