#include "terminal/paper/algo_plan.h"

#include <gtest/gtest.h>

namespace algo::terminal::paper {
namespace {

TEST(AlgoPlan, EveryFigureIsRead) {
  const auto plan = ReadAlgoPlan(
      "TMLO:AlgoId=VWAP,STime=20261120-09:30:00,ETime=20261120-15:00:05,WPx=10.5,VolPct=1,MaxVolPct=2,"
      "OpenPct=3,"
      "ClosePct=4,Waves=5,ThrPx1=6,ThrVolPct1=7,ThrPx2=8,ThrVolPct2=9,ShowQty=11,MaxShowQty=12,RandPct=13,"
      "StopLossPx=14,StopQty=15,Ref=16,TickDiff=-17,DiffPct=-18.5,MinQty=19,ServePct=20;");
  ASSERT_TRUE(plan);
  EXPECT_EQ(plan->algo, "VWAP");
  EXPECT_EQ(plan->start, text::ParseDateTime("2026-11-20 09:30:00"));
  EXPECT_EQ(plan->end, text::ParseDateTime("2026-11-20 15:00:05"));
  EXPECT_EQ(plan->limit, 10.5);
  EXPECT_EQ(plan->volPct, 1);
  EXPECT_EQ(plan->maxVolPct, 2);
  EXPECT_EQ(plan->openPct, 3);
  EXPECT_EQ(plan->closePct, 4);
  EXPECT_EQ(plan->waves, 5);
  EXPECT_EQ(plan->thresholdPrice1, 6);
  EXPECT_EQ(plan->thresholdPct1, 7);
  EXPECT_EQ(plan->thresholdPrice2, 8);
  EXPECT_EQ(plan->thresholdPct2, 9);
  EXPECT_EQ(plan->showQty, 11);
  EXPECT_EQ(plan->maxShowQty, 12);
  EXPECT_EQ(plan->randPct, 13);
  EXPECT_EQ(plan->stopPrice, 14);
  EXPECT_EQ(plan->stopQty, 15);
  EXPECT_EQ(plan->ref, 16);
  EXPECT_EQ(plan->tickDiff, -17);
  EXPECT_EQ(plan->diffPct, -18.5);
  EXPECT_EQ(plan->minQty, 19);
  EXPECT_EQ(plan->servePct, 20);
}

TEST(AlgoPlan, WhatIsNotGivenIsZeroOrAbsent) {
  const auto plan = ReadAlgoPlan("TMMO:AlgoId=TVOL Threshold;");
  ASSERT_TRUE(plan);
  EXPECT_EQ(plan->algo, "TVOL Threshold");
  EXPECT_EQ(plan->start, std::nullopt);
  EXPECT_EQ(plan->end, std::nullopt);
  EXPECT_EQ(plan->volPct, 0);
  EXPECT_EQ(plan->limit, 0);
}

TEST(AlgoPlan, KeysWithoutUseArePassedOverAndTheLastOfTwoHolds) {
  const auto plan = ReadAlgoPlan("TMLO:AlgoId=PEG,Closing=1,Iceberg=no,MaxVolPct=5,Closing=1,MaxVolPct=6;");
  ASSERT_TRUE(plan);
  EXPECT_EQ(plan->maxVolPct, 6);
}

TEST(AlgoPlan, WhatIsNoParameterTextIsNothing) {
  for (const char* text :
       {"", ";", "TMLO:", "TMLO:;", "AlgoId=TVOL;", "TMLO:AlgoId=TVOL", "TMXO:AlgoId=TVOL;", "TMLO:AlgoId=;",
        "TMLO:VolPct=5;", "TMLO:AlgoId=TVOL,;", "TMLO:AlgoId=TVOL,VolPct;", "TMLO:AlgoId=TVOL,VolPct=;",
        "TMLO:AlgoId=TVOL,VolPct=much;", "TMLO:AlgoId=TVOL,STime=soon;",
        "TMLO:AlgoId=TVOL,ETime=20260230-09:30:00;", "TMLO:AlgoId=TVOL,VolPct=1e999;"}) {
    EXPECT_FALSE(ReadAlgoPlan(text)) << text;
  }
}

}  // namespace
}  // namespace algo::terminal::paper
