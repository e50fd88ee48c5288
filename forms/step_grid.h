#pragma once

// The points that a number is stepped along where a step is more than a fixed width: the ticks of a price,
// which are wider for higher prices, or the lots of a quantity. A host gives one to the editors that it
// serves.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "forms/export.h"

namespace algo::forms {

/// From `from` on, points are `width` apart.
struct TGridRange {
  double from = 0;
  double width = 1;

  bool operator==(const TGridRange&) const = default;
};

/// Points on the line of numbers. Where a range begins there is a point, also where the range below it does
/// not come out even. The first range goes down beyond its beginning too, to the lowest point if there is
/// one.
class ALGO_SHARED TStepGrid {
 public:
  /// No points at all.
  TStepGrid() = default;
  /// Ranges in rising order, their widths above 0.
  explicit TStepGrid(std::vector<TGridRange> ranges, std::optional<double> lowest = std::nullopt);

  bool Empty() const { return FRanges.empty(); }

  /// The point that many points above `value`, below it for a negative count; never below the lowest. From
  /// between two points the first step goes to the next one. The grid must not be empty.
  double Stepped(double value, std::int32_t steps) const;

 private:
  std::size_t RangeAt(double value) const;
  /// How many steps lead from the beginning of a range to that of the next.
  double StepsIn(std::size_t range) const;
  double Up(double value, double steps) const;
  double Down(double value, double steps) const;

  std::vector<TGridRange> FRanges;
  std::optional<double> FLowest;
};

}  // namespace algo::forms
