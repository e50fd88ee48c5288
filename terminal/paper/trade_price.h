#pragma once

// At what price an order trades on paper.

#include <optional>

#include "terminal/paper/algo_plan.h"
#include "terminal/paper/paper_algos.h"
#include "terminal/paper/quote.h"
#include "terminal/paper/spread_table.h"

namespace algo::terminal::paper {

/// The stricter one of two limits for that side; 0 is no limit.
double StricterLimit(bool buy, double left, double right);

/// The price at which the order trades in this step; nothing when it does not. It is on the grid and never
/// beyond `limit`, 0 for none.
///
/// An order that rests does so at its reference price (its own side's best one, where it names none that a
/// quote has) with its differences added. It trades there once somebody else did, or at the other side's
/// price where it reaches that.
std::optional<double> TradePrice(TPricing pricing, const TAlgoPlan& plan, bool buy, double limit,
                                 const TQuote& quote, const TSpreadTable& spread);

}  // namespace algo::terminal::paper
