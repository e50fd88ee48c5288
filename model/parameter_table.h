#pragma once

// The parameters' rows as constants, so that the tables about them can be checked while they are compiled.

#include <array>

#include "model/parameters.h"

namespace algo::model {

namespace parameter_rows {

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

}  // namespace parameter_rows

inline constexpr std::array<TParamRow, ParamCount> ParamTable{
    parameter_rows::Time(TParam::STime, "STime", "deSTime"),
    parameter_rows::Time(TParam::ETime, "ETime", "deETime"),
    parameter_rows::Number(TParam::VolPct, "VolPct", "edtVolPct"),
    parameter_rows::Number(TParam::WPx, "WPx", "edtWPx"),
    parameter_rows::Choice(TParam::Opening, "Opening", "cmbOpening", OpenCloseCode),
    parameter_rows::Choice(TParam::Closing, "Closing", "cmbClosing", OpenCloseCode, true),
    parameter_rows::Number(TParam::MinOrdAmt, "MinOrdAmt", "edtMinOrdAmt"),
    parameter_rows::Choice(TParam::Style, "Style", "cmbStyle", StyleCode),
    parameter_rows::Number(TParam::ThrPx1, "ThrPx1", "edtThrPx1"),
    parameter_rows::Number(TParam::ThrVolPct1, "ThrVolPct1", "edtThrVolPct1"),
    parameter_rows::Number(TParam::ThrPx2, "ThrPx2", "edtThrPx2"),
    parameter_rows::Number(TParam::ThrVolPct2, "ThrVolPct2", "edtThrVolPct2"),
    parameter_rows::Number(TParam::MaxVolPct, "MaxVolPct", "edtMaxVolPct"),
    parameter_rows::Number(TParam::OpenPct, "OpenPct", "edtOpenPct"),
    parameter_rows::Number(TParam::ClosePct, "ClosePct", "edtClosePct"),
    parameter_rows::Number(TParam::Slices, "Waves", "edtSlices"),
    parameter_rows::Choice(TParam::Func, "Func", "cmbFunc", FuncCode),
    parameter_rows::Number(TParam::ShowQty, "ShowQty", "edtShowQty"),
    parameter_rows::Number(TParam::MaxShowQty, "MaxShowQty", "edtMaxShowQty"),
    parameter_rows::Number(TParam::RandPct, "RandPct", "edtRandPct"),
    parameter_rows::Number(TParam::ReloadPct, "ReloadPct", "edtReloadPct"),
    parameter_rows::Number(TParam::StopLossPx, "StopLossPx", "edtStopLossPx"),
    parameter_rows::Number(TParam::StopQty, "StopQty", "edtStopQty"),
    parameter_rows::Number(TParam::JoinThr, "JoinThr", "edtJoinThr"),
    parameter_rows::Choice(TParam::Join, "Join", "cmbJoin", OpenCloseCode),
    parameter_rows::Choice(TParam::Iceberg, "Iceberg", "cmbIceberg", OpenCloseCode),
    parameter_rows::Number(TParam::RandTimeOut, "RandTimeout", "edtRandTimeOut"),
    parameter_rows::Number(TParam::JoinQty, "JoinQty", "edtJoinQty"),
    parameter_rows::Number(TParam::DiffPct, "DiffPct", "edtDiffPct"),
    parameter_rows::Number(TParam::TickDiff, "TickDiff", "edtTickDiff"),
    parameter_rows::Number(TParam::TimeOut, "Timeout", "edtTimeOut"),
    parameter_rows::Choice(TParam::Ref, "Ref", "cmbRef", RefCode),
    parameter_rows::Number(TParam::MinQty, "MinQty", "edtMinQty"),
    parameter_rows::Number(TParam::ServePct, "ServePct", "edtServePct"),
    parameter_rows::Choice(TParam::AccuVol, "AccuVol", "cmbAccuVol", AccuVolCode),
    parameter_rows::Choice(TParam::CloseSim, "CloseSim", "cmbCloseSim", OpenCloseCode),
    parameter_rows::Choice(TParam::AllInAuc, "AllInAuc", "cmbAllInAuc", OpenCloseCode),
};

}  // namespace algo::model
