#pragma once

// The wrong answers of a service that fails without a throw, by the type of the answer.

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "forms/control.h"
#include "terminal/host/faults.h"

namespace algo::terminal {

/// How much of it a wild answer has.
inline constexpr std::size_t WildLength = 1000;

/// What the kinds mean for a type. Unless said otherwise all of them are its neutral value: false, no object,
/// an empty text, the number that a text without a number counts as.
template <class TAnswer>
struct TWrongAnswers {
  static TAnswer Empty() { return TAnswer(); }
  static TAnswer Wild(std::uint32_t /*turn*/) { return TAnswer(); }
};

template <>
struct TWrongAnswers<std::string> {
  static std::string Empty() { return {}; }
  static std::string Wild(std::uint32_t /*turn*/) { return std::string(WildLength, 'x'); }
};

/// A list that may be not configured, which is what null means for it.
template <>
struct TWrongAnswers<std::optional<std::vector<std::string>>> {
  using TList = std::vector<std::string>;
  static std::optional<TList> Empty() { return TList(); }
  static std::optional<TList> Wild(std::uint32_t /*turn*/) {
    TList list;
    for (std::size_t i = 0; i < WildLength; ++i) list.push_back("x" + std::to_string(i));
    list.emplace_back();
    return list;
  }
};

/// A count: in turn a negative one, as a number without a sign holds it, and one that is never reached.
template <>
struct TWrongAnswers<std::size_t> {
  static std::size_t Empty() { return 0; }
  static std::size_t Wild(std::uint32_t turn) {
    return turn % 2 == 0 ? std::numeric_limits<std::size_t>::max()
                         : static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max());
  }
};

template <>
struct TWrongAnswers<forms::TColor> {
  static forms::TColor Empty() { return 0; }
  static forms::TColor Wild(std::uint32_t /*turn*/) { return std::numeric_limits<forms::TColor>::max(); }
};

/// The answer of that type for the failure.
template <class TAnswer>
TAnswer WrongAnswer(const TFaultAnswer& fault) {
  switch (fault.kind) {
    case TFaultKind::Empty:
      return TWrongAnswers<TAnswer>::Empty();
    case TFaultKind::Wild:
      return TWrongAnswers<TAnswer>::Wild(fault.turn);
    default:
      return TAnswer();
  }
}

}  // namespace algo::terminal
