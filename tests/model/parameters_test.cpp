#include "model/parameters.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace algo::model {
namespace {

constexpr TValueKind Number = TValueKind::Number;
constexpr TValueKind Whole = TValueKind::Whole;
constexpr TValueKind Choice = TValueKind::Choice;
constexpr TValueKind Time = TValueKind::Time;

struct TExpected {
  std::string_view key;
  std::string_view control;
  TParam param;
  TValueKind kind;
};

constexpr TExpected AllParameters[] = {
    {"STime", "deSTime", TParam::STime, Time},
    {"ETime", "deETime", TParam::ETime, Time},
    {"VolPct", "edtVolPct", TParam::VolPct, Number},
    {"WPx", "edtWPx", TParam::WPx, Number},
    {"Opening", "cmbOpening", TParam::Opening, Choice},
    {"Closing", "cmbClosing", TParam::Closing, Choice},
    {"MinOrdAmt", "edtMinOrdAmt", TParam::MinOrdAmt, Whole},
    {"Style", "cmbStyle", TParam::Style, Choice},
    {"ThrPx1", "edtThrPx1", TParam::ThrPx1, Number},
    {"ThrVolPct1", "edtThrVolPct1", TParam::ThrVolPct1, Number},
    {"ThrPx2", "edtThrPx2", TParam::ThrPx2, Number},
    {"ThrVolPct2", "edtThrVolPct2", TParam::ThrVolPct2, Number},
    {"MaxVolPct", "edtMaxVolPct", TParam::MaxVolPct, Number},
    {"OpenPct", "edtOpenPct", TParam::OpenPct, Number},
    {"ClosePct", "edtClosePct", TParam::ClosePct, Number},
    {"Waves", "edtSlices", TParam::Slices, Whole},
    {"Func", "cmbFunc", TParam::Func, Choice},
    {"ShowQty", "edtShowQty", TParam::ShowQty, Number},
    {"MaxShowQty", "edtMaxShowQty", TParam::MaxShowQty, Whole},
    {"RandPct", "edtRandPct", TParam::RandPct, Number},
    {"ReloadPct", "edtReloadPct", TParam::ReloadPct, Number},
    {"StopLossPx", "edtStopLossPx", TParam::StopLossPx, Number},
    {"StopQty", "edtStopQty", TParam::StopQty, Whole},
    {"JoinThr", "edtJoinThr", TParam::JoinThr, Number},
    {"Join", "cmbJoin", TParam::Join, Choice},
    {"Iceberg", "cmbIceberg", TParam::Iceberg, Choice},
    {"RandTimeout", "edtRandTimeOut", TParam::RandTimeOut, Number},
    {"JoinQty", "edtJoinQty", TParam::JoinQty, Whole},
    {"DiffPct", "edtDiffPct", TParam::DiffPct, Number},
    {"TickDiff", "edtTickDiff", TParam::TickDiff, Whole},
    {"Timeout", "edtTimeOut", TParam::TimeOut, Whole},
    {"Ref", "cmbRef", TParam::Ref, Choice},
    {"MinQty", "edtMinQty", TParam::MinQty, Number},
    {"ServePct", "edtServePct", TParam::ServePct, Number},
    {"AccuVol", "cmbAccuVol", TParam::AccuVol, Choice},
    {"CloseSim", "cmbCloseSim", TParam::CloseSim, Choice},
    {"AllInAuc", "cmbAllInAuc", TParam::AllInAuc, Choice},
};

TEST(Parameters, HaveTheirKeyControlAndKind) {
  ASSERT_EQ(ParamRows().size(), std::size(AllParameters));
  for (const TExpected& expected : AllParameters) {
    const TParamRow& row = ParamRow(expected.param);
    EXPECT_EQ(row.param, expected.param) << expected.key;
    EXPECT_EQ(row.key, expected.key);
    EXPECT_EQ(row.control, expected.control);
    EXPECT_EQ(row.kind, expected.kind) << expected.key;
  }
}

TEST(Parameters, OfAChoiceAreResetToItsNotSetItemButForThree) {
  for (const TParamRow& row : ParamRows()) {
    TReset expected = row.kind == Choice ? TReset::LastItem : TReset::Empty;
    if (row.key == "Closing" || row.key == "Func") expected = TReset::FirstItem;
    if (row.key == "Style") expected = TReset::Refilled;
    EXPECT_EQ(row.reset, expected) << row.key;
  }
}

TEST(Parameters, ThatNoAlgorithmWritesAreThree) {
  std::vector<std::string_view> keys;
  for (const TParamRow& row : ParamRows()) {
    if (row.notWritten) keys.push_back(row.key);
  }
  EXPECT_EQ(keys, (std::vector<std::string_view>{"AccuVol", "CloseSim", "AllInAuc"}));
}

TEST(Parameters, OnlyTheClosingChoiceIsResetByATextWithoutIt) {
  for (const TParamRow& row : ParamRows()) {
    EXPECT_EQ(row.missingSelectsLast, row.param == TParam::Closing) << row.key;
  }
}

}  // namespace
}  // namespace algo::model
