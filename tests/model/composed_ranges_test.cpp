#include <gtest/gtest.h>

#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include "model/parameter_text.h"

namespace algo::model {
namespace {

// What each algorithm writes of a number: nothing on a bound or beyond it.
struct TRange {
  std::string_view code;
  TParam param;
  std::string_view key;
  int low;
  std::optional<int> high;
};

constexpr std::optional<int> Open = std::nullopt;

const TRange AllRanges[] = {
    {"TVOL", TParam::VolPct, "VolPct", 0, 80},
    {"TVOL", TParam::WPx, "WPx", 0, Open},
    {"TVOL", TParam::MinOrdAmt, "MinOrdAmt", 0, Open},
    {"TVOL Threshold", TParam::VolPct, "VolPct", 0, 80},
    {"TVOL Threshold", TParam::WPx, "WPx", 0, Open},
    {"TVOL Threshold", TParam::MinOrdAmt, "MinOrdAmt", 0, Open},
    {"TVOL Threshold", TParam::ThrPx1, "ThrPx1", 0, Open},
    {"TVOL Threshold", TParam::ThrVolPct1, "ThrVolPct1", 0, 100},
    {"TVOL Threshold", TParam::ThrPx2, "ThrPx2", 0, Open},
    {"TVOL Threshold", TParam::ThrVolPct2, "ThrVolPct2", 0, 100},
    {"TWAP", TParam::WPx, "WPx", 0, Open},
    {"TWAP", TParam::MinOrdAmt, "MinOrdAmt", 0, Open},
    {"TWAP", TParam::MaxVolPct, "MaxVolPct", 0, 75},
    {"VWAP", TParam::WPx, "WPx", 0, Open},
    {"VWAP", TParam::MinOrdAmt, "MinOrdAmt", 0, Open},
    {"VWAP", TParam::MaxVolPct, "MaxVolPct", 0, 75},
    {"VWAP", TParam::OpenPct, "OpenPct", 0, 100},
    {"VWAP", TParam::ClosePct, "ClosePct", 0, 100},
    {"VWAP", TParam::Slices, "Waves", 0, Open},
    {"ICEBERG", TParam::MinOrdAmt, "MinOrdAmt", 0, Open},
    {"ICEBERG", TParam::ShowQty, "ShowQty", 0, Open},
    {"ICEBERG", TParam::MaxShowQty, "MaxShowQty", 0, Open},
    {"ICEBERG", TParam::RandPct, "RandPct", 0, 100},
    {"ICEBERG", TParam::ReloadPct, "ReloadPct", 0, 100},
    {"ICEBERG", TParam::WPx, "WPx", 0, Open},
    {"STOP", TParam::StopLossPx, "StopLossPx", 0, Open},
    {"STOP", TParam::StopQty, "StopQty", 0, Open},
    {"PEG", TParam::JoinThr, "JoinThr", 0, Open},
    {"PEG", TParam::ShowQty, "ShowQty", 0, Open},
    {"PEG", TParam::RandTimeOut, "RandTimeout", 0, 100},
    {"PEG", TParam::JoinQty, "JoinQty", 0, Open},
    {"PEG", TParam::DiffPct, "DiffPct", -100, 100},
    {"PEG", TParam::TickDiff, "TickDiff", -500, 500},
    {"PEG", TParam::TimeOut, "Timeout", 0, Open},
    {"PEG", TParam::MaxVolPct, "MaxVolPct", 0, 80},
    {"PEG", TParam::WPx, "WPx", 0, Open},
    {"PEG", TParam::MinOrdAmt, "MinOrdAmt", 0, Open},
    {"MOC", TParam::MaxVolPct, "MaxVolPct", 0, 80},
    {"MOC", TParam::ClosePct, "ClosePct", 0, 100},
    {"MOC", TParam::WPx, "WPx", 0, Open},
    {"MOC", TParam::MinOrdAmt, "MinOrdAmt", 0, Open},
    {"MOC", TParam::ShowQty, "ShowQty", 0, Open},
    {"SNIPER", TParam::TimeOut, "Timeout", 0, Open},
    {"SNIPER", TParam::MinQty, "MinQty", 0, Open},
    {"SNIPER", TParam::ServePct, "ServePct", 0, 100},
};

// The text of the number half a step inside a whole bound.
std::string HalfBehind(int bound) {
  return bound < 0 ? std::to_string(bound + 1) + ".5" : std::to_string(bound) + ".5";
}
std::string HalfBefore(int bound) { return std::to_string(bound - 1) + ".5"; }

TEST(ComposedRanges, HoldANumberStrictlyInsideAlone) {
  for (const TRange& range : AllRanges) {
    const auto text = [&range](double value) {
      TParamValues values;
      values.SetNumber(range.param, value);
      const TAlgoRow* row = FindAlgoByCode(range.code);
      EXPECT_NE(row, nullptr) << range.code;
      return ComposeText(false, range.code, row, values);
    };
    const std::string start = "TMLO:AlgoId=" + std::string(range.code);
    const std::string without = start + ";";
    const auto with = [&](const std::string& number) {
      return std::string(start).append(",").append(range.key).append("=").append(number).append(";");
    };
    EXPECT_EQ(text(range.low - 1), without);
    EXPECT_EQ(text(range.low), without);
    EXPECT_EQ(text(range.low + 0.5), with(HalfBehind(range.low)));
    if (range.high) {
      EXPECT_EQ(text(*range.high - 0.5), with(HalfBefore(*range.high)));
      EXPECT_EQ(text(*range.high), without);
      EXPECT_EQ(text(*range.high + 1), without);
    } else {
      EXPECT_EQ(text(987654321), with("987654321"));
    }
  }
}

TEST(ComposedRanges, AreAllTestedHere) {
  std::size_t numbers = 0;
  for (const TAlgoRow& row : AlgoRows()) {
    for (const TPiece& piece : row.pieces) {
      numbers += IsNumber(ParamRow(piece.param).kind) ? 1U : 0U;
    }
  }
  EXPECT_EQ(numbers, std::size(AllRanges));
}

}  // namespace
}  // namespace algo::model
