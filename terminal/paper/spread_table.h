#pragma once

// The grid of possible prices: a spread table says which tick applies from which price on. Results are
// rounded to six decimals, so that they read as people write them.

#include <span>
#include <vector>

namespace algo::terminal::paper {

/// From the price `from` on, prices are `tick` apart.
struct TSpreadStep {
  double from = 0;
  double tick = 0;
};

/// Steps in order of price; the first begins at 0, and each has a tick above 0.
using TSpreadTable = std::vector<TSpreadStep>;

/// The tick at that price, which is 0 or more; where two steps meet, the upper step's.
double TickAt(std::span<const TSpreadStep> table, double price);

/// The nearest price on the grid that is not above `price`.
double RoundDownToTick(std::span<const TSpreadStep> table, double price);

/// The nearest price on the grid that is not below `price`.
double RoundUpToTick(std::span<const TSpreadStep> table, double price);

/// The price on the grid that is nearest to `price`; the upper of two equally near.
double RoundToTick(std::span<const TSpreadStep> table, double price);

/// The price that many ticks above `price`, or below it for a negative count, each tick as wide as the grid
/// is there; never below the lowest price above 0. `price` is on the grid.
double MoveTicks(std::span<const TSpreadStep> table, double price, int ticks);

}  // namespace algo::terminal::paper
