#pragma once

// The algorithms' parameters, one row each: the key under which a parameter stands in the parameter text, the
// control that holds it, what kind of value it is, within which bounds, and what an emptied form has of it.
// The order of the rows is the order in which a text is loaded into the form.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "model/choices.h"

namespace algo::model {

enum class TParam : std::uint8_t {
  STime,
  ETime,
  TimeOut,
  VolPct,
  AccuVol,
  Opening,
  Closing,
  MinOrdAmt,
  Style,
  WPx,
  ThrPx1,
  ThrPx2,
  ThrVolPct1,
  ThrVolPct2,
  Slices,
  MaxVolPct,
  OpenPct,
  ClosePct,
  CloseSim,
  ShowQty,
  MaxShowQty,
  RandPct,
  ReloadPct,
  Func,
  AllInAuc,
  StopLossPx,
  StopQty,
  TickDiff,
  Iceberg,
  JoinThr,
  JoinQty,
  RandTimeOut,
  Ref,
  DiffPct,
  ServePct,
  MinQty,
  Join,
};

constexpr std::size_t IndexOf(TParam param) { return static_cast<std::size_t>(param); }

/// Whole numbers are numbers that an editor takes without a fraction; a fraction that comes from elsewhere is
/// kept.
enum class TValueKind : std::uint8_t { Number, Whole, Choice, Time };

constexpr bool IsNumber(TValueKind kind) { return kind == TValueKind::Number || kind == TValueKind::Whole; }

/// The bounds within which a number can be typed, both included; nothing for an open end.
struct TBounds {
  std::optional<double> min = {};
  std::optional<double> max = {};
};

/// What a reset of the form gives a parameter.
enum class TReset : std::uint8_t {
  Empty,
  FirstItem,
  LastItem,
  Refilled,  ///< its list is filled anew by each algorithm that has it, and left alone by the others
};

struct TParamRow {
  TParam param;
  std::string_view key;      ///< case-sensitive, as the parameter text has it
  std::string_view control;  ///< the control's name on the form
  TValueKind kind;
  TBounds bounds = {};       ///< of numbers
  TChoiceList choices = {};  ///< of choices
  TReset reset = TReset::Empty;
  bool missingSelectsLast =
      false;  ///< a text without the key chooses the not-set item, instead of leaving the choice
  bool notWritten = false;    ///< no algorithm writes it, though a text that has it is read
  bool alwaysChosen = false;  ///< a change of language chooses the last item where none was chosen
};

namespace parameter_rows {

inline constexpr TBounds FromZero{0, {}};
inline constexpr TBounds Percent{0, 100};

constexpr TParamRow Number(TParam param, std::string_view key, std::string_view control, TBounds bounds) {
  return {.param = param, .key = key, .control = control, .kind = TValueKind::Number, .bounds = bounds};
}

constexpr TParamRow Whole(TParam param, std::string_view key, std::string_view control, TBounds bounds) {
  return {.param = param, .key = key, .control = control, .kind = TValueKind::Whole, .bounds = bounds};
}

constexpr TParamRow Choice(TParam param, std::string_view key, std::string_view control, TChoiceList choices,
                           TReset reset = TReset::LastItem, bool missingSelectsLast = false) {
  return {.param = param,
          .key = key,
          .control = control,
          .kind = TValueKind::Choice,
          .choices = choices,
          .reset = reset,
          .missingSelectsLast = missingSelectsLast};
}

constexpr TParamRow NotWritten(TParamRow row) {
  row.notWritten = true;
  return row;
}

constexpr TParamRow AlwaysChosen(TParamRow row) {
  row.alwaysChosen = true;
  return row;
}

constexpr TParamRow Time(TParam param, std::string_view key, std::string_view control) {
  return {.param = param, .key = key, .control = control, .kind = TValueKind::Time};
}

// clang-format off
inline constexpr std::array Table{
    Time(TParam::STime, "STime", "deSTime"),
    Time(TParam::ETime, "ETime", "deETime"),
    Whole(TParam::TimeOut, "Timeout", "edtTimeOut", FromZero),
    Number(TParam::VolPct, "VolPct", "edtVolPct", {0, 80}),
    NotWritten(Choice(TParam::AccuVol, "AccuVol", "cmbAccuVol", AccuVolChoices)),
    Choice(TParam::Opening, "Opening", "cmbOpening", OpenCloseChoices),
    Choice(TParam::Closing, "Closing", "cmbClosing", OpenCloseChoices, TReset::FirstItem, true),
    Whole(TParam::MinOrdAmt, "MinOrdAmt", "edtMinOrdAmt", FromZero),
    Choice(TParam::Style, "Style", "cmbStyle", StyleChoices, TReset::Refilled),
    Number(TParam::WPx, "WPx", "edtWPx", FromZero),
    Number(TParam::ThrPx1, "ThrPx1", "edtThrPx1", FromZero),
    Number(TParam::ThrPx2, "ThrPx2", "edtThrPx2", FromZero),
    Number(TParam::ThrVolPct1, "ThrVolPct1", "edtThrVolPct1", Percent),
    Number(TParam::ThrVolPct2, "ThrVolPct2", "edtThrVolPct2", Percent),
    Whole(TParam::Slices, "Waves", "edtSlices", FromZero),
    Number(TParam::MaxVolPct, "MaxVolPct", "edtMaxVolPct", Percent),
    Number(TParam::OpenPct, "OpenPct", "edtOpenPct", Percent),
    Number(TParam::ClosePct, "ClosePct", "edtClosePct", Percent),
    NotWritten(Choice(TParam::CloseSim, "CloseSim", "cmbCloseSim", OpenCloseChoices)),
    Number(TParam::ShowQty, "ShowQty", "edtShowQty", FromZero),
    Whole(TParam::MaxShowQty, "MaxShowQty", "edtMaxShowQty", FromZero),
    Number(TParam::RandPct, "RandPct", "edtRandPct", Percent),
    Number(TParam::ReloadPct, "ReloadPct", "edtReloadPct", Percent),
    Choice(TParam::Func, "Func", "cmbFunc", FuncChoices, TReset::FirstItem),
    NotWritten(Choice(TParam::AllInAuc, "AllInAuc", "cmbAllInAuc", OpenCloseChoices)),
    Number(TParam::StopLossPx, "StopLossPx", "edtStopLossPx", FromZero),
    Whole(TParam::StopQty, "StopQty", "edtStopQty", FromZero),
    Whole(TParam::TickDiff, "TickDiff", "edtTickDiff", {-500, 500}),
    Choice(TParam::Iceberg, "Iceberg", "cmbIceberg", OpenCloseChoices),
    Number(TParam::JoinThr, "JoinThr", "edtJoinThr", FromZero),
    Whole(TParam::JoinQty, "JoinQty", "edtJoinQty", FromZero),
    Number(TParam::RandTimeOut, "RandTimeout", "edtRandTimeOut", Percent),
    AlwaysChosen(Choice(TParam::Ref, "Ref", "cmbRef", RefChoices)),
    Number(TParam::DiffPct, "DiffPct", "edtDiffPct", {-100, 100}),
    Number(TParam::ServePct, "ServePct", "edtServePct", Percent),
    Number(TParam::MinQty, "MinQty", "edtMinQty", FromZero),
    Choice(TParam::Join, "Join", "cmbJoin", OpenCloseChoices),
};
// clang-format on

}  // namespace parameter_rows

inline constexpr std::size_t ParamCount = parameter_rows::Table.size();

/// All parameters, in the order of TParam.
constexpr std::span<const TParamRow, ParamCount> ParamRows() { return parameter_rows::Table; }

constexpr const TParamRow& ParamRow(TParam param) { return parameter_rows::Table[IndexOf(param)]; }

namespace parameter_rows {

constexpr std::size_t LongestKey() {
  std::size_t longest = 0;
  for (const TParamRow& row : Table) longest = row.key.size() > longest ? row.key.size() : longest;
  return longest;
}

}  // namespace parameter_rows

/// The length of the longest key.
inline constexpr std::size_t MaxKeyLength = parameter_rows::LongestKey();

}  // namespace algo::model
