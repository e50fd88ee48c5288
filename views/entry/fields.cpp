#include "views/entry/fields.h"

#include <algorithm>
#include <array>

namespace algo::views {

namespace {

using enum TField;
using enum TGroup;
using enum TFieldKind;
using TExitRule::Bounds;
using TExitRule::Zero;
using TExitRule::ZeroOrMax;
using enum forms::TDirection;

// How figures are shown: percentages plain, all else with thousands separators; "7" with seven decimals at
// most.
constexpr forms::TNumberFormat Percent{.whole = false, .grouped = false, .decimals = -1};
constexpr forms::TNumberFormat Figure{.whole = false, .grouped = true, .decimals = -1};
constexpr forms::TNumberFormat Decimal7{.whole = false, .grouped = true, .decimals = 7};
constexpr forms::TNumberFormat Whole7{.whole = true, .grouped = true, .decimals = 7};

// The three top groups stand side by side: the order's own fields, the algorithm's, and a second column that
// one algorithm needs. lgVWAP is part of the form and is never shown.
// clang-format off
constexpr std::array<TGroupRow, GroupCount> Groups{{
    {lgOrder, "lgOrder", TGroup::None, Vertical, ""},
    {lgAlgo, "lgAlgo", TGroup::None, Vertical, ""},
    {lgAlgoRight, "lgAlgoRight", TGroup::None, Vertical, ""},
    {lgAcct, "lgAcct", lgOrder, Horizontal, ""},
    {lgSymbol, "lgSymbol", lgOrder, Horizontal, ""},
    {lgPrice, "lgPrice", lgOrder, Horizontal, ""},
    {lgQty, "lgQty", lgOrder, Horizontal, ""},
    {lgExch, "lgExch", lgOrder, Horizontal, ""},
    {lgOrd, "lgOrd", lgOrder, Horizontal, ""},
    {lgMOrder, "lgMOrder", lgOrder, Horizontal, ""},
    {lgButton, "lgButton", lgOrder, Vertical, ""},
    {lgCheck, "lgCheck", lgButton, Horizontal, ""},
    {lgBtn, "lgBtn", lgButton, Horizontal, ""},
    {lgSubmit, "lgSubmit", lgBtn, Vertical, ""},
    {lgBuy, "lgBuy", lgBtn, Vertical, ""},
    {lgSell, "lgSell", lgBtn, Vertical, ""},
    {lgTrading, "lgTrading", lgAlgo, Vertical, "Res_Algo_Trading"},
    {lgVol, "lgVol", lgAlgo, Vertical, "Res_Volume"},
    {lgWOrder, "lgWOrder", lgAlgo, Vertical, "Res_Algo_WOrder"},
    {lgAuc, "lgAuc", lgAlgo, Vertical, "Res_Algo_Auc"},
    {lgVWAP, "lgVWAP", lgAuc, Vertical, "Res_Algo_VWAP"},
    {lgMinOrder, "lgMinOrder", lgAlgo, Vertical, "Res_Algo_MinOrder"},
    {lgStyle, "lgStyle", lgAlgo, Vertical, "Res_Algo_Style"},
    {lgSlices, "lgSlices", lgAlgo, Vertical, "Res_Algo_Waves"},
    {lgTVOLth, "lgTVOLth", lgAlgo, Vertical, "Res_Algo_TVOLTH"},
    {lgICEBERG, "lgICEBERG", lgAlgo, Vertical, "Res_Algo_Iceberg"},
    {lgExc, "lgExc", lgICEBERG, Vertical, ""},
    {lgSTOP, "lgSTOP", lgAlgo, Vertical, "Res_Algo_STOP"},
    {lgPEG, "lgPEG", lgAlgo, Vertical, "Res_Algo_PEG"},
    {lgPEGExcept, "lgPEGExcept", lgPEG, Vertical, ""},
    {lgSNIPER, "lgSNIPER", lgAlgo, Vertical, "Res_Algo_SNIPER"},
    {lgRef, "lgRef", lgAlgo, Vertical, "Res_Algo_Ref"},
    {lgTime, "lgTime", lgAlgo, Vertical, "Res_Algo_Delay"},
}};
// clang-format on

struct TRange {
  std::optional<double> min;
  std::optional<double> max;
};
constexpr TRange Unbounded{};
constexpr TRange FromZero{0, {}};

enum TClick : bool { KeepsCaret, SelectsAll };
enum TPick : bool { DropsTime, KeepsTime };

constexpr TFieldRow Field(TFieldKind kind, TField field, std::string_view name, std::string_view item,
                          TGroup group, std::string_view captionId = {}) {
  return {.field = field, .name = name, .kind = kind, .item = item, .group = group, .captionId = captionId};
}

constexpr TFieldRow DateTime(TField field, std::string_view name, std::string_view item, TGroup group,
                             std::string_view captionId, TPick pick) {
  TFieldRow row = Field(Date, field, name, item, group, captionId);
  row.clickSelectsAll = true;
  row.pickKeepsTime = pick;
  return row;
}

constexpr TFieldRow Number(TField field, std::string_view name, std::string_view item, TGroup group,
                           std::string_view captionId, const forms::TNumberFormat& format,
                           const TRange& range, TExitRule exitRule, TClick click, double step = 1) {
  TFieldRow row = Field(Spin, field, name, item, group, captionId);
  row.format = format;
  row.min = range.min;
  row.max = range.max;
  row.step = step;
  row.exitRule = exitRule;
  row.clickSelectsAll = click;
  return row;
}

// Exit rules, click rules and bounds differ from field to field on purpose.
// clang-format off
constexpr std::array<TFieldRow, FieldCount> Fields{{
    Field(Edit, edtAccount, "edtAccount", "liAccount", lgAcct, "Res_Account"),
    Field(Check, cbLockAcct, "cbLockAcct", "liLockAcct", lgAcct),
    Field(Edit, edtSymbol, "edtSymbol", "liSymbol", lgSymbol, "Res_Symbol"),
    Field(Check, cbLockSymbol, "cbLockSymbol", "liLockSymbol", lgSymbol),
    Number(edtPrice, "edtPrice", "liPrice", lgPrice, "Res_Ticket_Limit_Price_Hint", Figure, Unbounded, TExitRule::None, KeepsCaret),
    Field(Check, cbLockPrice, "cbLockPrice", "liLockPrice", lgPrice),
    Number(edtQty, "edtQty", "liQuantity", lgQty, "Res_OrderQty", Figure, Unbounded, TExitRule::None, KeepsCaret),
    Field(Check, cbLockQty, "cbLockQty", "liLockQty", lgQty),
    Field(Combo, cmbExch, "cmbExch", "liExch", lgExch, "Res_Market"),
    Field(Check, cbLockExch, "cbLockExch", "liLockExch", lgExch),
    Field(Combo, cmbOrderType, "cmbOrderType", "liOrderType", lgOrd, "Res_AlgoOrderType"),
    Field(Check, cbLockOrderType, "cbLockOrderType", "liLockOrderType", lgOrd),
    Field(Combo, cmbMType, "cmbMType", "liMOrder", lgMOrder, "Res_Ticket_OrderType"),
    Field(Check, cbLockMOrder, "cbLockMOrder", "liLockMOrder", lgMOrder),
    Field(Check, cbClear, "cbClear", "liCClear", lgCheck),
    Field(Check, cbPopup, "cbPopup", "liPopup", lgCheck),
    Field(Button, btnSubmit, "btnSubmit", "liSubmit", lgSubmit),
    Field(Button, btnClear, "btnClear", "liClear", lgSubmit),
    Field(Button, btnWork, "btnWork", "liWork", lgSubmit),
    Field(SpeedButton, btnBuy, "btnBuy", "liBuy", lgBuy),
    Field(SpeedButton, btnSell, "btnSell", "liSell", lgSell),
    DateTime(deSTime, "deSTime", "liSTime", lgTrading, "Res_Algo_STime", KeepsTime),
    DateTime(deETime, "deETime", "liETime", lgTrading, "Res_Algo_ETime", DropsTime),
    Number(edtVolPct, "edtVolPct", "liVolPct", lgVol, "Res_Algo_VolPct", Percent, TRange{0, 80}, ZeroOrMax, SelectsAll),
    Number(edtMaxVolPct, "edtMaxVolPct", "liMaxVolPct", lgVol, "Res_Algo_MaxVolPct", Percent, TRange{0, 100}, ZeroOrMax, SelectsAll),
    Field(Combo, cmbAccuVol, "cmbAccuVol", "liAccuVol", lgVol, "Res_Algo_AccuVol"),
    Number(edtWPx, "edtWPx", "liWPx", lgWOrder, "Res_Algo_Wpx", Decimal7, FromZero, Zero, KeepsCaret),
    Field(Combo, cmbOpening, "cmbOpening", "liOpening", lgAuc, "Res_Algo_Opening"),
    Number(edtOpenPct, "edtOpenPct", "liOpenPct", lgAuc, "Res_Algo_OpenPct", Percent, TRange{0, 100}, ZeroOrMax, SelectsAll),
    Field(Combo, cmbClosing, "cmbClosing", "liClosing", lgAuc, "Res_Algo_Closing"),
    Number(edtClosePct, "edtClosePct", "liClosePct", lgAuc, "Res_Algo_ClosePct", Percent, TRange{0, 100}, ZeroOrMax, SelectsAll),
    Field(Combo, cmbCloseSim, "cmbCloseSim", "liCloseSim", lgVWAP, "Res_Algo_CloseSim"),
    Number(edtMinOrdAmt, "edtMinOrdAmt", "liMinOrdAmt", lgMinOrder, "Res_Algo_MinOrdAmt", Whole7, FromZero, Zero, SelectsAll),
    Field(Combo, cmbStyle, "cmbStyle", "liStyle", lgStyle, "Res_Algo_Style"),
    Number(edtSlices, "edtSlices", "liSlices", lgSlices, "Res_Algo_Waves", Whole7, FromZero, Zero, SelectsAll),
    Number(edtThrPx1, "edtThrPx1", "liThrPx1", lgTVOLth, "Res_Algo_ThrPx1", Decimal7, FromZero, Zero, KeepsCaret),
    Number(edtThrVolPct1, "edtThrVolPct1", "liThrVolPct1", lgTVOLth, "Res_Algo_ThrVolPct1", Percent, TRange{0, 100}, ZeroOrMax, SelectsAll),
    Number(edtThrPx2, "edtThrPx2", "liThrPx2", lgTVOLth, "Res_Algo_ThrPx2", Decimal7, FromZero, Zero, KeepsCaret),
    Number(edtThrVolPct2, "edtThrVolPct2", "liThrVolPct2", lgTVOLth, "Res_Algo_ThrVolPct2", Percent, TRange{0, 100}, ZeroOrMax, SelectsAll),
    Field(Combo, cmbIceberg, "cmbIceberg", "liIceberg", lgICEBERG, "Res_Algo_Iceberg"),
    Number(edtShowQty, "edtShowQty", "liShowQty", lgICEBERG, "Res_Algo_ShowQty", Decimal7, FromZero, Zero, KeepsCaret),
    Number(edtMaxShowQty, "edtMaxShowQty", "liMaxShowQty", lgExc, "Res_Algo_MaxShowQty", Whole7, FromZero, Zero, KeepsCaret),
    Number(edtRandPct, "edtRandPct", "liRandPct", lgExc, "Res_Algo_RandPct", Percent, TRange{0, 100}, ZeroOrMax, SelectsAll, 0.01),
    Number(edtReloadPct, "edtReloadPct", "liReloadPct", lgExc, "Res_Algo_ReloadPct", Percent, TRange{0, 100}, ZeroOrMax, SelectsAll, 0.01),
    Field(Combo, cmbFunc, "cmbFunc", "liFunc", lgExc, "Res_Algo_Func"),
    Field(Combo, cmbAllInAuc, "cmbAllInAuc", "liAllInAuc", lgExc, "Res_Algo_AllInAuc"),
    Number(edtStopLossPx, "edtStopLossPx", "liStopLossPx", lgSTOP, "Res_Algo_StopLossPx", Decimal7, FromZero, Zero, KeepsCaret),
    Number(edtStopQty, "edtStopQty", "liStopQty", lgSTOP, "Res_Algo_StopQty", Whole7, FromZero, Zero, KeepsCaret),
    Field(Combo, cmbJoin, "cmbJoin", "liJoin", lgPEG, "Res_Algo_Join"),
    Number(edtJoinThr, "edtJoinThr", "liJoinThr", lgPEG, "Res_Algo_JoinThr", Decimal7, FromZero, Zero, SelectsAll),
    Number(edtJoinQty, "edtJoinQty", "liJoinQty", lgPEGExcept, "Res_Algo_JoinQty", Whole7, FromZero, Zero, KeepsCaret),
    Number(edtMinQty, "edtMinQty", "liMinQty", lgSNIPER, "Res_Algo_MinQty", Figure, FromZero, Zero, KeepsCaret),
    Number(edtServePct, "edtServePct", "liServePct", lgSNIPER, "Res_Algo_ServePct", Percent, TRange{0, 100}, ZeroOrMax, SelectsAll),
    Field(Combo, cmbRef, "cmbRef", "liRef", lgRef, "Res_Algo_Ref"),
    Number(edtTickDiff, "edtTickDiff", "liTickDiff", lgRef, "Res_Algo_TickDiff", Whole7, TRange{-500, 500}, Bounds, SelectsAll),
    Number(edtDiffPct, "edtDiffPct", "liDiffPct", lgRef, "Res_Algo_DiffPct", Percent, TRange{-100, 100}, Bounds, SelectsAll),
    Number(edtTimeOut, "edtTimeOut", "liTimeOut", lgTime, "Res_Algo_Timeout", Whole7, FromZero, Zero, SelectsAll),
    Number(edtRandTimeOut, "edtRandTimeOut", "liRandTimeOut", lgTime, "Res_Algo_RandTimeout", Decimal7, TRange{0, 100}, ZeroOrMax, SelectsAll, 0.01),
}};
// clang-format on

constexpr bool InOrder() {
  for (std::size_t i = 0; i < FieldCount; ++i) {
    if (IndexOf(Fields[i].field) != i) return false;
  }
  for (std::size_t i = 0; i < GroupCount; ++i) {
    if (IndexOf(Groups[i].group) != i) return false;
  }
  return true;
}

constexpr bool NamesAreUnique() {
  for (std::size_t i = 0; i < FieldCount; ++i) {
    for (std::size_t j = i + 1; j < FieldCount; ++j) {
      if (Fields[i].name == Fields[j].name || Fields[i].item == Fields[j].item) return false;
    }
  }
  return true;
}

// A group is made after the one that it stands in.
constexpr bool ParentsComeFirst() {
  return std::all_of(Groups.begin(), Groups.end(), [](const TGroupRow& row) {
    return row.parent == TGroup::None || row.parent < row.group;
  });
}

static_assert(InOrder() && NamesAreUnique() && ParentsComeFirst());

}  // namespace

std::span<const TGroupRow> GroupRows() { return Groups; }

std::span<const TFieldRow> FieldRows() { return Fields; }

TField FieldOf(model::TParam param) {
  static const auto fields = [] {
    std::array<TField, model::ParamCount> map{};
    for (const model::TParamRow& row : model::ParamRows()) {
      const auto field = std::find_if(Fields.begin(), Fields.end(),
                                      [&row](const TFieldRow& each) { return each.name == row.control; });
      map[static_cast<std::size_t>(row.param)] = field->field;
    }
    return map;
  }();
  return fields[static_cast<std::size_t>(param)];
}

}  // namespace algo::views
