#pragma once

// The lists that the module asks the host for: exchanges, and what each of them offers.

#include "terminal/host/host_data.h"
#include "terminal/paper/market_tables.h"

namespace algo::terminal::desk {

/// Fills the lists of the data from the market's tables.
void FillMarketLists(THostData& data, const paper::TMarketTables& tables);

}  // namespace algo::terminal::desk
