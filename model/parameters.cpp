#include "model/parameters.h"

#include <array>

namespace algo::model {

namespace {

constexpr TParamRow Number(TParam param, std::string_view key, std::string_view control) {
  return {param, key, control, TValueKind::Number};
}

constexpr TParamRow Choice(TParam param, std::string_view key, std::string_view control,
                           const TChoiceCode& code, bool missingSelectsLast = false) {
  return {param, key, control, TValueKind::Choice, &code, missingSelectsLast};
}

constexpr TParamRow Time(TParam param, std::string_view key, std::string_view control) {
  return {param, key, control, TValueKind::Time};
}

constexpr std::array<TParamRow, ParamCount> Rows{
    Time(TParam::STime, "STime", "deSTime"),
    Time(TParam::ETime, "ETime", "deETime"),
    Number(TParam::VolPct, "VolPct", "edtVolPct"),
    Number(TParam::WPx, "WPx", "edtWPx"),
    Choice(TParam::Opening, "Opening", "cmbOpening", OpenCloseCode),
    Choice(TParam::Closing, "Closing", "cmbClosing", OpenCloseCode, true),
    Number(TParam::MinOrdAmt, "MinOrdAmt", "edtMinOrdAmt"),
    Choice(TParam::Style, "Style", "cmbStyle", StyleCode),
    Number(TParam::ThrPx1, "ThrPx1", "edtThrPx1"),
    Number(TParam::ThrVolPct1, "ThrVolPct1", "edtThrVolPct1"),
    Number(TParam::ThrPx2, "ThrPx2", "edtThrPx2"),
    Number(TParam::ThrVolPct2, "ThrVolPct2", "edtThrVolPct2"),
    Number(TParam::MaxVolPct, "MaxVolPct", "edtMaxVolPct"),
    Number(TParam::OpenPct, "OpenPct", "edtOpenPct"),
    Number(TParam::ClosePct, "ClosePct", "edtClosePct"),
    Number(TParam::Slices, "Waves", "edtSlices"),
    Choice(TParam::Func, "Func", "cmbFunc", FuncCode),
    Number(TParam::ShowQty, "ShowQty", "edtShowQty"),
    Number(TParam::MaxShowQty, "MaxShowQty", "edtMaxShowQty"),
    Number(TParam::RandPct, "RandPct", "edtRandPct"),
    Number(TParam::ReloadPct, "ReloadPct", "edtReloadPct"),
    Number(TParam::StopLossPx, "StopLossPx", "edtStopLossPx"),
    Number(TParam::StopQty, "StopQty", "edtStopQty"),
    Number(TParam::JoinThr, "JoinThr", "edtJoinThr"),
    Choice(TParam::Join, "Join", "cmbJoin", OpenCloseCode),
    Choice(TParam::Iceberg, "Iceberg", "cmbIceberg", OpenCloseCode),
    Number(TParam::RandTimeOut, "RandTimeout", "edtRandTimeOut"),
    Number(TParam::JoinQty, "JoinQty", "edtJoinQty"),
    Number(TParam::DiffPct, "DiffPct", "edtDiffPct"),
    Number(TParam::TickDiff, "TickDiff", "edtTickDiff"),
    Number(TParam::TimeOut, "Timeout", "edtTimeOut"),
    Choice(TParam::Ref, "Ref", "cmbRef", RefCode),
    Number(TParam::MinQty, "MinQty", "edtMinQty"),
    Number(TParam::ServePct, "ServePct", "edtServePct"),
    Choice(TParam::AccuVol, "AccuVol", "cmbAccuVol", AccuVolCode),
    Choice(TParam::CloseSim, "CloseSim", "cmbCloseSim", OpenCloseCode),
    Choice(TParam::AllInAuc, "AllInAuc", "cmbAllInAuc", OpenCloseCode),
};

constexpr bool InOrder() {
  for (std::size_t i = 0; i < Rows.size(); ++i) {
    if (IndexOf(Rows[i].param) != i) return false;
  }
  return true;
}

constexpr bool NamesAreUnique() {
  for (std::size_t i = 0; i < Rows.size(); ++i) {
    for (std::size_t j = i + 1; j < Rows.size(); ++j) {
      if (Rows[i].key == Rows[j].key || Rows[i].control == Rows[j].control) return false;
    }
  }
  return true;
}

static_assert(InOrder() && NamesAreUnique());

}  // namespace

std::span<const TParamRow> ParamRows() { return Rows; }

}  // namespace algo::model
