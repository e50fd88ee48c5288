#include "terminal/host/setting_text.h"

#include <algorithm>
#include <array>
#include <limits>

#include "text/number_text.h"

namespace algo::terminal {

bool IsTrueText(std::string_view text) {
  constexpr std::array<std::string_view, 5> TrueTexts{"Y", "y", "1", "true", "True"};
  return std::find(TrueTexts.begin(), TrueTexts.end(), text) != TrueTexts.end();
}

std::int32_t WholeNumberOf(std::string_view text) {
  const std::int64_t number = text::ParseWhole(text).value_or(0);
  const bool fits = number >= std::numeric_limits<std::int32_t>::min() &&
                    number <= std::numeric_limits<std::int32_t>::max();
  return fits ? static_cast<std::int32_t>(number) : 0;
}

}  // namespace algo::terminal
