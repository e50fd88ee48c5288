#pragma once

// The entries of the algo fields as values: each parameter is a number, a choice, a time or nothing.

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>

#include "model/parameters.h"
#include "text/date_text.h"

namespace algo::model {

/// Parameter → value. A copy is a plain copy of memory; nothing allocates.
class TParamValues {
 public:
  /// A number that is not finite counts as nothing.
  void SetNumber(TParam param, std::optional<double> number) {
    Slot(param).number = number && std::isfinite(*number) ? number : std::nullopt;
  }
  /// The index of the chosen item, -1 for none.
  void SetChoice(TParam param, std::int32_t index) { Slot(param).choice = index; }
  void SetTime(TParam param, std::optional<text::TDateTime> time) { Slot(param).time = time; }

  std::optional<double> Number(TParam param) const { return Slot(param).number; }
  std::int32_t Choice(TParam param) const { return Slot(param).choice; }
  std::optional<text::TDateTime> Time(TParam param) const { return Slot(param).time; }

  bool operator==(const TParamValues&) const = default;

 private:
  struct TSlot {
    std::optional<double> number;
    std::optional<text::TDateTime> time;
    std::int32_t choice = -1;

    bool operator==(const TSlot&) const = default;
  };

  TSlot& Slot(TParam param) { return FSlots[IndexOf(param)]; }
  const TSlot& Slot(TParam param) const { return FSlots[IndexOf(param)]; }

  std::array<TSlot, ParamCount> FSlots;
};

}  // namespace algo::model
