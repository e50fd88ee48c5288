#pragma once

// The driver's two JSON types. Commands come from outside and keep their keys sorted, so that a line with
// very many keys is still read quickly; answers keep their keys in the order of writing, so that they read
// well.

#include <cmath>
#include <cstdint>
#include <nlohmann/json.hpp>

#include "text/errors.h"

namespace algo::terminal::drive {

using TCommandJson = nlohmann::json;
using TAnswerJson = nlohmann::ordered_json;

/// Thrown when a command is refused. Its text is the answer's `error`.
class ECommandError : public EError {
 public:
  using EError::EError;
};

/// A number as answers show it: whole numbers without a fraction, null for infinity and NaN.
inline TAnswerJson NumberJson(double number) {
  constexpr double ExactlyWhole = 9007199254740992.0;
  if (!std::isfinite(number)) return nullptr;
  if (std::abs(number) < ExactlyWhole && std::trunc(number) == number)
    return static_cast<std::int64_t>(number);
  return number;
}

}  // namespace algo::terminal::drive
