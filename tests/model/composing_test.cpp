#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "model/parameter_text.h"
#include "tests/model/sample_values.h"

namespace algo::model {
namespace {

std::string Compose(std::string_view code, const TParamValues& values, bool marketChildren = false) {
  const TAlgoRow* row = FindAlgoByCode(code);
  EXPECT_NE(row, nullptr) << code;
  return ComposeText(marketChildren, code, row, values);
}

TEST(Composing, WritesThePiecesOfEachAlgorithmInItsOrder) {
  const TParamValues all = EverythingGiven();
  EXPECT_EQ(Compose("TVOL", all),
            "TMLO:AlgoId=TVOL,STime=20240115-09:30:00,ETime=20240115-15:00:00,VolPct=20,WPx=10.5,Opening=1,"
            "Closing=0,"
            "MinOrdAmt=50000,Style=5;");
  EXPECT_EQ(
      Compose("TVOL Threshold", all),
      "TMLO:AlgoId=TVOL Threshold,ThrPx1=10.2,ThrVolPct1=30,STime=20240115-09:30:00,ETime=20240115-15:00:00,"
      "VolPct=20,WPx=10.5,Opening=1,Closing=0,MinOrdAmt=50000,Style=5,ThrPx2=10.8,ThrVolPct2=5;");
  EXPECT_EQ(Compose("TWAP", all),
            "TMLO:AlgoId=TWAP,STime=20240115-09:30:00,ETime=20240115-15:00:00,WPx=10.5,Opening=1,Closing=0,"
            "MinOrdAmt=50000,Style=5,MaxVolPct=25;");
  EXPECT_EQ(Compose("VWAP", all),
            "TMLO:AlgoId=VWAP,STime=20240115-09:30:00,ETime=20240115-15:00:00,WPx=10.5,Opening=1,Closing=0,"
            "MinOrdAmt=50000,Style=5,MaxVolPct=25,OpenPct=11,ClosePct=12.25,Waves=13;");
  EXPECT_EQ(Compose("CLOSE", all), "TMLO:AlgoId=CLOSE;");
  EXPECT_EQ(Compose("OPEN", all), "TMLO:AlgoId=OPEN;");
  EXPECT_EQ(Compose("ICEBERG", all),
            "TMLO:AlgoId=ICEBERG,STime=20240115-09:30:00,ETime=20240115-15:00:00,Opening=1,Closing=0,"
            "MinOrdAmt=50000,"
            "Func=2,ShowQty=2000,MaxShowQty=5000,RandPct=21,ReloadPct=50,Style=5,WPx=10.5;");
  EXPECT_EQ(Compose("STOP", all),
            "TMLO:AlgoId=STOP,STime=20240115-09:30:00,ETime=20240115-15:00:00,StopLossPx=9.8,StopQty=4000;");
  EXPECT_EQ(Compose("PEG", all),
            "TMLO:AlgoId=PEG,STime=20240115-09:30:00,ETime=20240115-15:00:00,Closing=0,JoinThr=1000,Join=1,"
            "Iceberg=0,"
            "ShowQty=2000,RandTimeout=31,JoinQty=200,DiffPct=-5,TickDiff=2,Timeout=60,Ref=11,MaxVolPct=25,"
            "Closing=0,"
            "Style=5,WPx=10.5,MinOrdAmt=50000;");
  EXPECT_EQ(
      Compose("MOC", all),
      "TMLO:AlgoId=MOC,STime=20240115-09:30:00,ETime=20240115-15:00:00,MaxVolPct=25,ClosePct=12.25,Style=5,"
      "WPx=10.5,MinOrdAmt=50000,ShowQty=2000;");
  EXPECT_EQ(
      Compose("SNIPER", all),
      "TMLO:AlgoId=SNIPER,STime=20240115-09:30:00,ETime=20240115-15:00:00,Timeout=60,MinQty=700,ServePct=40,"
      "Style=5;");
  EXPECT_EQ(Compose("SHORT SELL", all),
            "TMLO:AlgoId=SHORT SELL,STime=20240115-09:30:00,ETime=20240115-15:00:00,Ref=11;");
}

TEST(Composing, WritesOnlyPrefixAndIdOfAnEmptyForm) {
  const TParamValues nothing;
  EXPECT_EQ(Compose("TVOL", nothing), "TMLO:AlgoId=TVOL;");
  EXPECT_EQ(Compose("TVOL Threshold", nothing), "TMLO:AlgoId=TVOL Threshold;");
  EXPECT_EQ(Compose("TWAP", nothing), "TMLO:AlgoId=TWAP;");
  EXPECT_EQ(Compose("VWAP", nothing), "TMLO:AlgoId=VWAP;");
  EXPECT_EQ(Compose("ICEBERG", nothing), "TMLO:AlgoId=ICEBERG;");
  EXPECT_EQ(Compose("STOP", nothing), "TMLO:AlgoId=STOP;");
  EXPECT_EQ(Compose("PEG", nothing), "TMLO:AlgoId=PEG;");
  EXPECT_EQ(Compose("MOC", nothing), "TMLO:AlgoId=MOC;");
  EXPECT_EQ(Compose("SNIPER", nothing), "TMLO:AlgoId=SNIPER;");
  EXPECT_EQ(Compose("SHORT SELL", nothing), "TMLO:AlgoId=SHORT SELL;");
}

TEST(Composing, SaysInThePrefixThatTheChildrenAreMarketOrders) {
  EXPECT_EQ(Compose("TVOL", {}, true), "TMMO:AlgoId=TVOL;");
  EXPECT_EQ(Compose("CLOSE", EverythingGiven(), true), "TMMO:AlgoId=CLOSE;");
}

TEST(Composing, WritesNoPiecesOfAnUnknownAlgorithm) {
  EXPECT_EQ(ComposeText(false, "ARRIVAL", nullptr, EverythingGiven()), "TMLO:AlgoId=ARRIVAL;");
  const std::string longCode(20000, 'x');
  EXPECT_EQ(ComposeText(true, longCode, nullptr, {}), "TMMO:AlgoId=" + longCode + ";");
}

TEST(Composing, WritesTheFormOfEachAlgorithmAsTheEngineReadsIt) {
  TParamValues values;
  values.SetTime(TParam::STime, At(9, 30));
  values.SetTime(TParam::ETime, At(15, 0));
  values.SetNumber(TParam::MinOrdAmt, 20000);
  values.SetNumber(TParam::MaxVolPct, 25);
  values.SetNumber(TParam::OpenPct, 10);
  values.SetNumber(TParam::ClosePct, 10);
  values.SetNumber(TParam::Slices, 12);
  values.SetChoice(TParam::Closing, 2);
  values.SetChoice(TParam::Style, 3);
  EXPECT_EQ(Compose("VWAP", values, true),
            "TMMO:AlgoId=VWAP,STime=20240115-09:30:00,ETime=20240115-15:00:00,MinOrdAmt=20000,MaxVolPct=25,"
            "OpenPct=10,ClosePct=10,Waves=12;");

  values = {};
  values.SetTime(TParam::STime, At(9, 30));
  values.SetTime(TParam::ETime, At(15, 0));
  values.SetNumber(TParam::ThrPx1, 10.2);
  values.SetNumber(TParam::ThrVolPct1, 30);
  values.SetNumber(TParam::VolPct, 15);
  values.SetChoice(TParam::Style, 0);
  values.SetNumber(TParam::ThrPx2, 10.8);
  values.SetNumber(TParam::ThrVolPct2, 5);
  EXPECT_EQ(
      Compose("TVOL Threshold", values),
      "TMLO:AlgoId=TVOL Threshold,ThrPx1=10.2,ThrVolPct1=30,STime=20240115-09:30:00,ETime=20240115-15:00:00,"
      "VolPct=15,Style=3,ThrPx2=10.8,ThrVolPct2=5;");

  values = {};
  values.SetTime(TParam::STime, At(9, 30));
  values.SetNumber(TParam::StopLossPx, 9.8);
  values.SetNumber(TParam::StopQty, 4000);
  EXPECT_EQ(Compose("STOP", values), "TMLO:AlgoId=STOP,STime=20240115-09:30:00,StopLossPx=9.8,StopQty=4000;");

  values = {};
  values.SetNumber(TParam::MaxVolPct, 20);
  values.SetNumber(TParam::ClosePct, 50);
  values.SetChoice(TParam::Style, 1);
  values.SetNumber(TParam::ShowQty, 1000);
  EXPECT_EQ(Compose("MOC", values), "TMLO:AlgoId=MOC,MaxVolPct=20,ClosePct=50,Style=5,ShowQty=1000;");

  values = {};
  values.SetTime(TParam::STime, At(9, 30));
  values.SetNumber(TParam::TimeOut, 120);
  values.SetNumber(TParam::MinQty, 1000);
  values.SetNumber(TParam::ServePct, 40);
  values.SetChoice(TParam::Style, 0);
  EXPECT_EQ(Compose("SNIPER", values),
            "TMLO:AlgoId=SNIPER,STime=20240115-09:30:00,Timeout=120,MinQty=1000,ServePct=40,Style=3;");
}

TEST(Composing, WritesTheClosingChoiceOfAPegTwice) {
  TParamValues values;
  values.SetChoice(TParam::Closing, 1);
  EXPECT_EQ(Compose("PEG", values), "TMLO:AlgoId=PEG,Closing=1,Closing=1;");
}

TEST(Composing, LeavesOutAVolumePercentOfEighty) {
  TParamValues values;
  values.SetNumber(TParam::VolPct, 80);
  EXPECT_EQ(Compose("TVOL", values), "TMLO:AlgoId=TVOL;");
  values.SetNumber(TParam::VolPct, 79);
  EXPECT_EQ(Compose("TVOL", values), "TMLO:AlgoId=TVOL,VolPct=79;");
}

TEST(Composing, WritesEachChoiceByItsCode) {
  const auto text = [](std::string_view code, TParam param, std::int32_t index) {
    TParamValues values;
    values.SetChoice(param, index);
    return Compose(code, values);
  };
  EXPECT_EQ(text("SNIPER", TParam::Style, 0), "TMLO:AlgoId=SNIPER,Style=3;");
  EXPECT_EQ(text("SNIPER", TParam::Style, 1), "TMLO:AlgoId=SNIPER,Style=5;");
  EXPECT_EQ(text("SNIPER", TParam::Style, 2), "TMLO:AlgoId=SNIPER,Style=1;");
  EXPECT_EQ(text("SNIPER", TParam::Style, 3), "TMLO:AlgoId=SNIPER;");
  EXPECT_EQ(text("ICEBERG", TParam::Func, 0), "TMLO:AlgoId=ICEBERG,Func=0;");
  EXPECT_EQ(text("ICEBERG", TParam::Func, 2), "TMLO:AlgoId=ICEBERG,Func=2;");
  EXPECT_EQ(text("ICEBERG", TParam::Func, 3), "TMLO:AlgoId=ICEBERG;");
  EXPECT_EQ(text("SHORT SELL", TParam::Ref, 0), "TMLO:AlgoId=SHORT SELL,Ref=1;");
  EXPECT_EQ(text("SHORT SELL", TParam::Ref, 5), "TMLO:AlgoId=SHORT SELL,Ref=8;");
  EXPECT_EQ(text("SHORT SELL", TParam::Ref, 16), "TMLO:AlgoId=SHORT SELL,Ref=20;");
  EXPECT_EQ(text("SHORT SELL", TParam::Ref, 17), "TMLO:AlgoId=SHORT SELL;");
  EXPECT_EQ(text("PEG", TParam::Join, 0), "TMLO:AlgoId=PEG,Join=0;");
  EXPECT_EQ(text("PEG", TParam::Iceberg, 1), "TMLO:AlgoId=PEG,Iceberg=1;");
  EXPECT_EQ(text("TWAP", TParam::Opening, 2), "TMLO:AlgoId=TWAP;");
}

TEST(Composing, WritesQuantitiesInFullWithoutGroupingOrExponent) {
  TParamValues values;
  values.SetNumber(TParam::StopQty, 1e16);
  values.SetNumber(TParam::StopLossPx, 0.0000001);
  EXPECT_EQ(Compose("STOP", values), "TMLO:AlgoId=STOP,StopLossPx=0.0000001,StopQty=10000000000000000;");
}

TEST(Composing, HasRoomForTheLongestNumberInEveryPiece) {
  for (const TAlgoRow& row : AlgoRows()) {
    TParamValues values = EverythingGiven();
    for (const TPiece& piece : row.pieces) {
      const bool open = piece.below > 1e300;
      if (IsNumber(ParamRow(piece.param).kind)) {
        values.SetNumber(piece.param, open ? 1.7976931348623157e308 : 4.9406564584124654e-324);
      }
    }
    const std::string text = ComposeText(false, row.code, &row, values);
    EXPECT_EQ(text.back(), ';') << row.code;
    EXPECT_EQ(text.find("e-"), std::string::npos) << row.code;
  }
}

TEST(Composing, WritesADifferenceOfNothingBecauseItMeansSomething) {
  TParamValues values;
  values.SetNumber(TParam::DiffPct, 0);
  values.SetNumber(TParam::TickDiff, -0.0);
  EXPECT_EQ(Compose("PEG", values), "TMLO:AlgoId=PEG,DiffPct=0,TickDiff=0;");
}

}  // namespace
}  // namespace algo::model
