#include "model/parameters.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace algo::model {
namespace {

constexpr TValueKind Number = TValueKind::Number;
constexpr TValueKind Choice = TValueKind::Choice;
constexpr TValueKind Time = TValueKind::Time;

struct TExpected {
  TParam param;
  std::string_view key;
  std::string_view control;
  TValueKind kind;
};

constexpr TExpected AllParameters[] = {
    {TParam::STime, "STime", "deSTime", Time},
    {TParam::ETime, "ETime", "deETime", Time},
    {TParam::VolPct, "VolPct", "edtVolPct", Number},
    {TParam::WPx, "WPx", "edtWPx", Number},
    {TParam::Opening, "Opening", "cmbOpening", Choice},
    {TParam::Closing, "Closing", "cmbClosing", Choice},
    {TParam::MinOrdAmt, "MinOrdAmt", "edtMinOrdAmt", Number},
    {TParam::Style, "Style", "cmbStyle", Choice},
    {TParam::ThrPx1, "ThrPx1", "edtThrPx1", Number},
    {TParam::ThrVolPct1, "ThrVolPct1", "edtThrVolPct1", Number},
    {TParam::ThrPx2, "ThrPx2", "edtThrPx2", Number},
    {TParam::ThrVolPct2, "ThrVolPct2", "edtThrVolPct2", Number},
    {TParam::MaxVolPct, "MaxVolPct", "edtMaxVolPct", Number},
    {TParam::OpenPct, "OpenPct", "edtOpenPct", Number},
    {TParam::ClosePct, "ClosePct", "edtClosePct", Number},
    {TParam::Slices, "Waves", "edtSlices", Number},
    {TParam::Func, "Func", "cmbFunc", Choice},
    {TParam::ShowQty, "ShowQty", "edtShowQty", Number},
    {TParam::MaxShowQty, "MaxShowQty", "edtMaxShowQty", Number},
    {TParam::RandPct, "RandPct", "edtRandPct", Number},
    {TParam::ReloadPct, "ReloadPct", "edtReloadPct", Number},
    {TParam::StopLossPx, "StopLossPx", "edtStopLossPx", Number},
    {TParam::StopQty, "StopQty", "edtStopQty", Number},
    {TParam::JoinThr, "JoinThr", "edtJoinThr", Number},
    {TParam::Join, "Join", "cmbJoin", Choice},
    {TParam::Iceberg, "Iceberg", "cmbIceberg", Choice},
    {TParam::RandTimeOut, "RandTimeout", "edtRandTimeOut", Number},
    {TParam::JoinQty, "JoinQty", "edtJoinQty", Number},
    {TParam::DiffPct, "DiffPct", "edtDiffPct", Number},
    {TParam::TickDiff, "TickDiff", "edtTickDiff", Number},
    {TParam::TimeOut, "Timeout", "edtTimeOut", Number},
    {TParam::Ref, "Ref", "cmbRef", Choice},
    {TParam::MinQty, "MinQty", "edtMinQty", Number},
    {TParam::ServePct, "ServePct", "edtServePct", Number},
    {TParam::AccuVol, "AccuVol", "cmbAccuVol", Choice},
    {TParam::CloseSim, "CloseSim", "cmbCloseSim", Choice},
    {TParam::AllInAuc, "AllInAuc", "cmbAllInAuc", Choice},
};

TEST(Parameters, HaveTheirKeyControlAndKind) {
  ASSERT_EQ(ParamRows().size(), 37U);
  ASSERT_EQ(std::size(AllParameters), 37U);
  for (const TExpected& expected : AllParameters) {
    const TParamRow& row = ParamRow(expected.param);
    EXPECT_EQ(row.param, expected.param) << expected.key;
    EXPECT_EQ(row.key, expected.key);
    EXPECT_EQ(row.control, expected.control);
    EXPECT_EQ(row.kind, expected.kind) << expected.key;
  }
}

TEST(Parameters, OnlyTheClosingChoiceIsResetByATextWithoutIt) {
  for (const TParamRow& row : ParamRows()) {
    EXPECT_EQ(row.missingSelectsLast, row.param == TParam::Closing) << row.key;
  }
}

}  // namespace
}  // namespace algo::model
