#pragma once

// The lists that the module asks the host for: exchanges, and what each of them offers.

#include "terminal/host/host_data.h"
#include "terminal/paper/market_tables.h"

namespace algo::terminal {

/// Makes the lists of the data out of the market's tables.
void FillMarketLists(THostData& data, const TMarketTables& tables);

}  // namespace algo::terminal
