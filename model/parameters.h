#pragma once

// The algorithms' parameters, one row each: the key under which a parameter stands in the parameter text, the
// control that holds it, and what kind of value it is.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "model/choices.h"

namespace algo::model {

enum class TParam : std::uint8_t {
  STime,
  ETime,
  VolPct,
  WPx,
  Opening,
  Closing,
  MinOrdAmt,
  Style,
  ThrPx1,
  ThrVolPct1,
  ThrPx2,
  ThrVolPct2,
  MaxVolPct,
  OpenPct,
  ClosePct,
  Slices,
  Func,
  ShowQty,
  MaxShowQty,
  RandPct,
  ReloadPct,
  StopLossPx,
  StopQty,
  JoinThr,
  Join,
  Iceberg,
  RandTimeOut,
  JoinQty,
  DiffPct,
  TickDiff,
  TimeOut,
  Ref,
  MinQty,
  ServePct,
  AccuVol,
  CloseSim,
  AllInAuc
};

inline constexpr std::size_t ParamCount = static_cast<std::size_t>(TParam::AllInAuc) + 1;

/// The longest key that a parameter has.
inline constexpr std::size_t MaxKeyLength = 11;

constexpr std::size_t IndexOf(TParam param) { return static_cast<std::size_t>(param); }

enum class TValueKind : std::uint8_t { Number, Choice, Time };

struct TParamRow {
  TParam param;
  std::string_view key;      ///< case-sensitive, as the parameter text has it
  std::string_view control;  ///< the control's name on the form
  TValueKind kind;
  const TChoiceCode* codes = nullptr;  ///< how a choice is written; nullptr for the other kinds
  bool missingSelectsLast =
      false;  ///< a text without the key chooses the not-set item, instead of leaving the choice
};

/// All parameters, in the order of TParam.
std::span<const TParamRow> ParamRows();

inline const TParamRow& ParamRow(TParam param) { return ParamRows()[IndexOf(param)]; }

}  // namespace algo::model
