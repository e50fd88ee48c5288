#pragma once

// The two faces of JSON in the driver. Commands come from outside and are kept sorted, so that a line with
// very many keys is still read in good time; answers keep the order in which they were written, so that they
// read well.

#include <cmath>
#include <cstdint>
#include <nlohmann/json.hpp>

#include "text/errors.h"

namespace algo::terminal::drive {

using TCommandJson = nlohmann::json;
using TAnswerJson = nlohmann::ordered_json;

/// Why a command is refused. Its text is the answer's `error`.
class ECommandError : public EError {
 public:
  using EError::EError;
};

/// A number as answers show it: whole numbers without a fraction, null for what is no finite number.
inline TAnswerJson NumberJson(double number) {
  constexpr double ExactlyWhole = 9007199254740992.0;
  if (!std::isfinite(number)) return nullptr;
  if (std::abs(number) < ExactlyWhole && std::trunc(number) == number)
    return static_cast<std::int64_t>(number);
  return number;
}

}  // namespace algo::terminal::drive
