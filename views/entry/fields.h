#pragma once

// The controls of the entry form, one row each, and the groups that hold them. The form is made from these
// rows; what a control shows, accepts and does on leaving, on a click and in the layout text stands in its
// row and nowhere else.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "forms/layout.h"
#include "forms/spin_edit.h"
#include "model/parameters.h"

namespace algo::views {

/// The controls, named as on the form, in the order in which the form holds them.
enum class TField : std::uint8_t {
  edtAccount,
  cbLockAcct,
  edtSymbol,
  cbLockSymbol,
  edtPrice,
  cbLockPrice,
  edtQty,
  cbLockQty,
  cmbExch,
  cbLockExch,
  cmbOrderType,
  cbLockOrderType,
  cmbMType,
  cbLockMOrder,
  cbClear,
  cbPopup,
  btnSubmit,
  btnClear,
  btnWork,
  btnBuy,
  btnSell,
  deSTime,
  deETime,
  edtVolPct,
  edtMaxVolPct,
  cmbAccuVol,
  edtWPx,
  cmbOpening,
  edtOpenPct,
  cmbClosing,
  edtClosePct,
  cmbCloseSim,
  edtMinOrdAmt,
  cmbStyle,
  edtSlices,
  edtThrPx1,
  edtThrVolPct1,
  edtThrPx2,
  edtThrVolPct2,
  cmbIceberg,
  edtShowQty,
  edtMaxShowQty,
  edtRandPct,
  edtReloadPct,
  cmbFunc,
  cmbAllInAuc,
  edtStopLossPx,
  edtStopQty,
  cmbJoin,
  edtJoinThr,
  edtJoinQty,
  edtMinQty,
  edtServePct,
  cmbRef,
  edtTickDiff,
  edtDiffPct,
  edtTimeOut,
  edtRandTimeOut
};

inline constexpr std::size_t FieldCount = static_cast<std::size_t>(TField::edtRandTimeOut) + 1;

constexpr std::size_t IndexOf(TField field) { return static_cast<std::size_t>(field); }

/// The layout groups, in the order in which the form holds them.
enum class TGroup : std::uint8_t {
  lgOrder,
  lgAlgo,
  lgAlgoRight,
  lgAcct,
  lgSymbol,
  lgPrice,
  lgQty,
  lgExch,
  lgOrd,
  lgMOrder,
  lgButton,
  lgCheck,
  lgBtn,
  lgSubmit,
  lgBuy,
  lgSell,
  lgTrading,
  lgVol,
  lgWOrder,
  lgAuc,
  lgVWAP,
  lgMinOrder,
  lgStyle,
  lgSlices,
  lgTVOLth,
  lgICEBERG,
  lgExc,
  lgSTOP,
  lgPEG,
  lgPEGExcept,
  lgSNIPER,
  lgRef,
  lgTime,
  None
};

inline constexpr std::size_t GroupCount = static_cast<std::size_t>(TGroup::None);

constexpr std::size_t IndexOf(TGroup group) { return static_cast<std::size_t>(group); }

struct TGroupRow {
  TGroup group;
  std::string_view name;
  TGroup parent;  ///< None for the top groups
  forms::TDirection direction;
  std::string_view captionId;  ///< resource id; empty for a group without caption
};

enum class TFieldKind : std::uint8_t { Edit, Spin, Combo, Date, Check, Button, SpeedButton };

/// What leaving an editor does to a value that stands for "not given".
enum class TExitRule : std::uint8_t {
  None,
  Zero,       ///< 0 becomes empty
  ZeroOrMax,  ///< 0 becomes empty, and so does the current maximum
  Bounds,     ///< the lower and the upper bound become empty; 0 has a meaning and stays
};

struct TFieldRow {
  TField field;
  std::string_view name;
  TFieldKind kind;
  std::string_view item;
  TGroup group;
  std::string_view captionId = {};  ///< resource id of the item's caption; empty for items without one
  forms::TNumberFormat format = {};
  std::optional<double> min = {};
  std::optional<double> max = {};
  double step = 1;
  TExitRule exitRule = TExitRule::None;
  bool clickSelectsAll = false;
  bool pickKeepsTime = false;  ///< of date edits: a day picked from a calendar keeps the time of day
};

/// All groups, in the order of TGroup.
std::span<const TGroupRow> GroupRows();
/// All fields, in the order of TField.
std::span<const TFieldRow> FieldRows();

inline const TFieldRow& Row(TField field) { return FieldRows()[IndexOf(field)]; }

/// The field that holds the parameter.
TField FieldOf(model::TParam param);

}  // namespace algo::views
