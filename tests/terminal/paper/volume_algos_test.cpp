// TVOL and TVOL Threshold, which take a part of the traded volume, with worked examples.
// Unless a test says otherwise, an order is for 1,000 AAA in lots of 100, is sent at 10:00:00, and steps take
// a minute.

#include "terminal/paper/paper_algos.h"
#include "tests/terminal/paper/sample_market.h"

namespace algo::terminal::paper::tests {
namespace {

using VolumeAlgos = TPaperTest;

TEST_F(VolumeAlgos, TvolTakesItsPartOfTheVolumeAndSavesPartsOfALot) {
  const auto& order = Send("TMLO:AlgoId=TVOL,VolPct=20;");
  Quote(10, 10.02, 10, 2300);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 400) << "of 460";
  EXPECT_EQ(order.status, 2);
  Quote(10, 10.02, 10, 1000);
  Step("10:02:00");
  EXPECT_EQ(order.filled, 600) << "60 and 200";
  Quote(10, 10.02, 10, 700);
  Step("10:03:00");
  EXPECT_EQ(order.filled, 800) << "60 and 140";
  Quote(10, 10.02, 10, 50000);
  Step("10:04:00");
  EXPECT_EQ(order.filled, 1000);
  EXPECT_EQ(order.status, 3);
  EXPECT_EQ(Average(order), "10.02");
}

TEST_F(VolumeAlgos, TvolSellsAtTheBid) {
  const auto& order = Send(Selling(Ordered("TMLO:AlgoId=TVOL,VolPct=20;")));
  Quote(10, 10.02, 10.02, 2000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 400);
  EXPECT_EQ(Average(order), "10");
}

TEST_F(VolumeAlgos, TvolWithoutAPercentageTakesATenth) {
  const auto& order = Send("TMLO:AlgoId=TVOL;");
  Quote(10, 10.02, 10, 4000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 400);
}

TEST_F(VolumeAlgos, VolumeThatTradesBeyondTheLimitIsGone) {
  const auto& order = Send(Limited(Ordered("TMLO:AlgoId=TVOL,VolPct=20;"), 10));
  Quote(10, 10.02, 10, 50000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 0);
  EXPECT_EQ(order.status, 1);
  Quote(9.98, 10, 10, 1000);
  Step("10:02:00");
  EXPECT_EQ(order.filled, 200);
  EXPECT_EQ(Average(order), "10");
}

TEST_F(VolumeAlgos, TheStricterOneOfTwoLimitsHolds) {
  const auto& buying = Send(Limited(Ordered("TMLO:AlgoId=TVOL,VolPct=20,WPx=10;"), 10.1));
  const auto& selling = Send(Selling(Limited(Ordered("TMLO:AlgoId=TVOL,VolPct=20,WPx=9.9;"), 10.1)));
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  EXPECT_EQ(buying.filled, 0);
  EXPECT_EQ(selling.filled, 0);
}

TEST_F(VolumeAlgos, TvolThresholdTakesMoreWhereThePriceIsGoodAndLessWhereItIsBad) {
  const auto& buying =
      Send("TMLO:AlgoId=TVOL Threshold,ThrPx1=10,ThrVolPct1=30,VolPct=10,ThrPx2=10.4,ThrVolPct2=5;");
  const auto& selling = Send(Selling(
      Ordered("TMLO:AlgoId=TVOL Threshold,ThrPx1=10.4,ThrVolPct1=30,VolPct=10,ThrPx2=10,ThrVolPct2=5;")));
  Quote(10, 10.02, 10.02, 2000);
  Step("10:01:00");
  EXPECT_EQ(buying.filled, 200);
  EXPECT_EQ(selling.filled, 200);
  Quote(9.99, 10, 10, 2000);
  Step("10:02:00");
  EXPECT_EQ(buying.filled, 800) << "30 percent";
  EXPECT_EQ(selling.filled, 300) << "5 percent";
  Quote(10.38, 10.4, 10.4, 2000);
  Step("10:03:00");
  EXPECT_EQ(buying.filled, 900) << "5 percent";
  EXPECT_EQ(selling.filled, 900) << "30 percent";
}

TEST_F(VolumeAlgos, AlgorithmsAreKnownApartFromLetterCase) {
  EXPECT_NE(FindPaperAlgo("tvol threshold"), nullptr);
  EXPECT_EQ(FindPaperAlgo("TVOL threshold")->code, "TVOL Threshold");
  EXPECT_EQ(FindPaperAlgo("TVOL "), nullptr);
  EXPECT_EQ(FindPaperAlgo(""), nullptr);
}

}  // namespace
}  // namespace algo::terminal::paper::tests
