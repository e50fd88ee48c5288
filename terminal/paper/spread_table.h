#pragma once

// The grid that prices move on: a spread table says from which price on which tick holds. Results are the
// nearest numbers to prices of at most six decimals, so that they read as people write them.

#include <span>
#include <vector>

namespace algo::terminal::paper {

/// From the price `from` on, prices are `tick` apart.
struct TSpreadStep {
  double from = 0;
  double tick = 0;
};

/// Steps by rising price; the first begins at 0, and none is empty of ticks.
using TSpreadTable = std::vector<TSpreadStep>;

/// The tick at that price, which is 0 or more; at a price where two steps meet, the upper one's.
double TickAt(std::span<const TSpreadStep> table, double price);

/// The price on the grid at or next below `price`.
double RoundDownToTick(std::span<const TSpreadStep> table, double price);

/// The price on the grid at or next above `price`.
double RoundUpToTick(std::span<const TSpreadStep> table, double price);

/// The price on the grid that is nearest to `price`; the upper one of two.
double RoundToTick(std::span<const TSpreadStep> table, double price);

/// The price so many ticks above `price`, below it for a negative count, each as wide as it is where it is
/// taken; never below the lowest price above 0. `price` is on the grid.
double MoveTicks(std::span<const TSpreadStep> table, double price, int ticks);

}  // namespace algo::terminal::paper
