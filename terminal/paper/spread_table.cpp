#include "terminal/paper/spread_table.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <limits>

namespace algo::terminal::paper {

namespace {

// How far, in ticks, a price may be off the grid and still count as on it; far above rounding errors.
constexpr double Slack = 1e-6;

double SixDecimals(double price) {
  constexpr double Scale = 1e6;
  return std::round(price * Scale) / Scale;
}

// The price `ticks` above the beginning of the step, but not above the beginning of the next step.
double PriceIn(std::span<const TSpreadStep> table, std::size_t step, double ticks) {
  const double next =
      step + 1 < table.size() ? table[step + 1].from : std::numeric_limits<double>::infinity();
  return SixDecimals(std::min(table[step].from + ticks * table[step].tick, next));
}

// The last step that begins at or below the price.
std::size_t StepAt(std::span<const TSpreadStep> table, double price) {
  assert(!table.empty());
  std::size_t step = 0;
  while (step + 1 < table.size() && table[step + 1].from <= price + Slack * table[step].tick) ++step;
  return step;
}

double TicksInto(const TSpreadStep& step, double price) { return (price - step.from) / step.tick; }

double NextAbove(std::span<const TSpreadStep> table, double price) {
  const std::size_t step = StepAt(table, price);
  return PriceIn(table, step, std::floor(TicksInto(table[step], price) + Slack) + 1);
}

double NextBelow(std::span<const TSpreadStep> table, double price) {
  std::size_t step = StepAt(table, price);
  // A step that begins at this very price does not contain the prices below it.
  if (step > 0 && TicksInto(table[step], price) < Slack) --step;
  return PriceIn(table, step, std::ceil(TicksInto(table[step], price) - Slack) - 1);
}

}  // namespace

double TickAt(std::span<const TSpreadStep> table, double price) { return table[StepAt(table, price)].tick; }

double RoundDownToTick(std::span<const TSpreadStep> table, double price) {
  const std::size_t step = StepAt(table, price);
  return PriceIn(table, step, std::floor(TicksInto(table[step], price) + Slack));
}

double RoundUpToTick(std::span<const TSpreadStep> table, double price) {
  const std::size_t step = StepAt(table, price);
  return PriceIn(table, step, std::ceil(TicksInto(table[step], price) - Slack));
}

double RoundToTick(std::span<const TSpreadStep> table, double price) {
  const double below = RoundDownToTick(table, price);
  const double above = RoundUpToTick(table, price);
  return price - below < above - price ? below : above;
}

double MoveTicks(std::span<const TSpreadStep> table, double price, int ticks) {
  const double lowest = PriceIn(table, 0, 1);
  for (; ticks > 0; --ticks) price = NextAbove(table, price);
  for (; ticks < 0 && price > lowest; ++ticks) price = NextBelow(table, price);
  return std::max(price, lowest);
}

}  // namespace algo::terminal::paper
