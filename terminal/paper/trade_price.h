#pragma once

// The price at which an order trades in the paper market.

#include <optional>

#include "terminal/paper/algo_plan.h"
#include "terminal/paper/paper_algos.h"
#include "terminal/paper/quote.h"
#include "terminal/paper/spread_table.h"

namespace algo::terminal::paper {

/// The stricter of two limits for that side; 0 is no limit.
double StricterLimit(bool buy, double left, double right);

/// The price at which the order trades in this step; nothing if it does not. It is on the grid and never
/// beyond `limit`, 0 for none.
///
/// A resting order rests at its reference price plus its differences; without a reference price that a quote
/// has, at the best price of its own side. It trades there once somebody else did, or at the other side's
/// price if it reaches that.
std::optional<double> TradePrice(TPricing pricing, const TAlgoPlan& plan, bool buy, double limit,
                                 const TQuote& quote, const TSpreadTable& spread);

}  // namespace algo::terminal::paper
