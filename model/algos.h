#pragma once

// What a row of the catalogue of algorithms says: how an algorithm is named, what it shows of the form, what
// its parameter text holds and what its fields must satisfy. The rows stand in model/algo_table.h.

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string_view>

#include "model/inline_list.h"
#include "model/parameters.h"

namespace algo::model {

/// The most that a row has of each, which a constant of more does not compile with.
inline constexpr std::size_t MaxGroups = 10;
inline constexpr std::size_t MaxHiddenItems = 8;
inline constexpr std::size_t MaxPieces = 18;
inline constexpr std::size_t MaxRules = 11;

/// A piece of the parameter text. Numbers are written only strictly between the bounds, times and choices
/// when given.
struct TPiece {
  TParam param = {};
  double above = -std::numeric_limits<double>::infinity();
  double below = std::numeric_limits<double>::infinity();
};

enum class TComparison : std::uint8_t { Equal, Below, AtMost, AtLeast, Above };

/// A comparison of a value with a bound.
struct TTest {
  TComparison comparison = {};
  double bound = 0;
};

/// A rule on one number: it fails when one of its tests holds. A field that holds nothing passes every test.
struct TRule {
  TParam param = {};
  TTest first = {};
  std::optional<TTest> second = {};
  std::string_view message = {};  ///< resource id
};

/// An upper bound that an algorithm gives an editor. It stays when another algorithm is chosen that names
/// none.
struct TMaximum {
  TParam param = {};
  double maximum = 0;
};

struct TAlgoRow {
  std::string_view code;        ///< as the parameter text and the configuration have it
  std::string_view resourceId;  ///< as the form shows and lists it
  TInlineList<std::string_view, MaxGroups> groups = {};
  TInlineList<std::string_view, MaxHiddenItems> hiddenItems =
      {};  ///< items, and groups inside groups, that stay hidden
  TInlineList<TMaximum, 1> maximums = {};
  TInlineList<TParam, 1> notSetAtFirst =
      {};  ///< choices that start at their not-set item, whatever a reset gives them
  TInlineList<TParam, 1> fixedWhileWorking = {};  ///< what a change of a working order cannot change
  bool groupsInRightColumn = false;               ///< the shared groups move to the right-hand column
  TInlineList<TPiece, MaxPieces> pieces = {};     ///< in the order in which they are written
  TInlineList<TRule, MaxRules> rules = {};        ///< in the order in which they are applied
};

/// Whether the algorithm's parameter text can hold the parameter.
constexpr bool Writes(const TAlgoRow& algo, TParam param) {
  for (const TPiece& piece : algo.pieces) {
    if (piece.param == param) return true;
  }
  return false;
}

/// All algorithms, in the order of the catalogue.
std::span<const TAlgoRow> AlgoRows();

/// The algorithm of that code or resource id, whatever its letter case; nullptr when there is none.
const TAlgoRow* FindAlgoByCode(std::string_view code);
const TAlgoRow* FindAlgoById(std::string_view resourceId);

}  // namespace algo::model
