#pragma once

// The catalogue of algorithms, one row each: how it is named, what it shows of the form, what its parameter
// text holds and what its fields must satisfy.

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string_view>

#include "model/parameters.h"

namespace algo::model {

enum class TAlgo : std::uint8_t {
  TVOL,
  TVOLThreshold,
  TWAP,
  VWAP,
  CLOSE,
  OPEN,
  ICEBERG,
  STOP,
  PEG,
  MOC,
  SNIPER,
  SHORTSELL
};

inline constexpr std::size_t AlgoCount = static_cast<std::size_t>(TAlgo::SHORTSELL) + 1;

/// The most pieces that an algorithm's parameter text has.
inline constexpr std::size_t MaxPieces = 18;

/// A piece of the parameter text. Numbers are written only strictly between the bounds, times and choices
/// when given.
struct TPiece {
  TParam param;
  double above = -std::numeric_limits<double>::infinity();
  double below = std::numeric_limits<double>::infinity();
};

enum class TComparison : std::uint8_t { Equal, Below, AtMost, AtLeast };

/// A comparison of a value with a bound.
struct TTest {
  TComparison comparison;
  double bound;
};

/// A rule on one field: it fails when one of its tests holds. A field that holds nothing passes every test.
struct TRule {
  TParam param;
  TTest first;
  std::optional<TTest> second;
  std::string_view message;  ///< resource id
};

struct TAlgoRow {
  TAlgo algo;
  std::string_view code;        ///< as the parameter text and the configuration have it
  std::string_view resourceId;  ///< as the form shows and lists it
  std::span<const std::string_view> groups = {};
  std::span<const std::string_view> hiddenItems = {};  ///< items, and groups inside groups, that stay hidden
  std::optional<double> maxVolPctMaximum = {};         ///< the editor's new upper bound
  bool closingNotSet = false;                          ///< the closing choice starts at its not-set item
  bool groupsInRightColumn = false;                    ///< the shared groups move to the right-hand column
  bool refillsStyle = false;                           ///< has styles to choose from
  std::span<const TPiece> pieces = {};
  std::span<const TRule> rules = {};
};

/// The groups that are hidden before an algorithm is applied.
inline constexpr std::array<std::string_view, 14> AllAlgoGroups{
    "lgVol",     "lgWOrder", "lgStyle",  "lgMinOrder", "lgAuc",    "lgRef",  "lgTime",
    "lgTrading", "lgSlices", "lgTVOLth", "lgICEBERG",  "lgSNIPER", "lgSTOP", "lgPEG"};

/// What an algorithm may hide inside its groups, and what is shown again before the next one is applied.
inline constexpr std::array<std::string_view, 14> ItemsShownAgain{
    "liOpenPct", "liClosePct", "liTickDiff", "liDiffPct",   "liClosing", "liRandTimeOut", "liTimeOut",
    "liIceberg", "lgExc",      "liOpening",  "liMaxVolPct", "liJoin",    "liVolPct",      "lgPEGExcept"};

/// All algorithms, in the order of TAlgo.
std::span<const TAlgoRow> AlgoRows();

/// The algorithm of that code or resource id, whatever its letter case; nullptr when there is none.
const TAlgoRow* FindAlgoByCode(std::string_view code);
const TAlgoRow* FindAlgoById(std::string_view resourceId);

}  // namespace algo::model
