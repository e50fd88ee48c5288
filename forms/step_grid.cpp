#include "forms/step_grid.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

namespace algo::forms {

namespace {

// How far, in steps, a number may be off the grid and still count as on it; far above what arithmetic adds.
constexpr double Slack = 1e-6;

double WholeStepsBelow(double steps) { return std::floor(steps + Slack); }
double WholeStepsAbove(double steps) { return std::ceil(steps - Slack); }

double StepsInto(const TGridRange& range, double value) { return (value - range.from) / range.width; }

double PointOf(const TGridRange& range, double steps) { return range.from + steps * range.width; }

}  // namespace

TStepGrid::TStepGrid(std::vector<TGridRange> ranges, std::optional<double> lowest)
    : FRanges(std::move(ranges)), FLowest(lowest) {
  assert(std::ranges::is_sorted(FRanges, {}, &TGridRange::from));
  assert(std::ranges::all_of(FRanges, [](const TGridRange& range) { return range.width > 0; }));
}

double TStepGrid::Stepped(double value, std::int32_t steps) const {
  assert(!Empty());
  const double point = steps > 0   ? Up(value, steps)
                       : steps < 0 ? Down(value, -static_cast<double>(steps))
                                   : value;
  return FLowest ? std::max(point, *FLowest) : point;
}

std::size_t TStepGrid::RangeAt(double value) const {
  std::size_t range = 0;
  while (range + 1 < FRanges.size() && FRanges[range + 1].from <= value + Slack * FRanges[range].width) {
    ++range;
  }
  return range;
}

double TStepGrid::StepsIn(std::size_t range) const {
  return WholeStepsAbove(StepsInto(FRanges[range], FRanges[range + 1].from));
}

double TStepGrid::Up(double value, double steps) const {
  std::size_t range = RangeAt(value);
  // Counted in steps from where the range begins, on into the next range as long as they lead there.
  double reached = WholeStepsBelow(StepsInto(FRanges[range], value)) + steps;
  while (range + 1 < FRanges.size() && reached >= StepsIn(range)) reached -= StepsIn(range++);
  return PointOf(FRanges[range], reached);
}

double TStepGrid::Down(double value, double steps) const {
  std::size_t range = RangeAt(value);
  double reached = WholeStepsAbove(StepsInto(FRanges[range], value)) - steps;
  while (range > 0 && reached < 0) reached += StepsIn(--range);
  return PointOf(FRanges[range], reached);
}

}  // namespace algo::forms
