// How each algorithm is worked, one worked example or more for each. Unless a test says otherwise, an order
// is for 1,000 AAA in lots of 100, is sent at 10:00:00, and steps take a minute.

#include "terminal/paper/paper_algos.h"

#include <algorithm>

#include "tests/terminal/paper/sample_market.h"

namespace algo::terminal::paper::tests {
namespace {

using Algos = TPaperTest;

host::TCustomClientOrder Selling(host::TCustomClientOrder order) {
  order.side = host::SideSell;
  return order;
}

host::TCustomClientOrder Limited(host::TCustomClientOrder order, double price) {
  order.price = price;
  return order;
}

TEST_F(Algos, TvolTakesItsPartOfTheVolumeAndSavesPartsOfALot) {
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

TEST_F(Algos, TvolSellsAtTheBid) {
  const auto& order = Send(Selling(Ordered("TMLO:AlgoId=TVOL,VolPct=20;")));
  Quote(10, 10.02, 10.02, 2000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 400);
  EXPECT_EQ(Average(order), "10");
}

TEST_F(Algos, TvolWithoutAPercentageTakesATenth) {
  const auto& order = Send("TMLO:AlgoId=TVOL;");
  Quote(10, 10.02, 10, 4000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 400);
}

TEST_F(Algos, VolumeThatTradesBeyondTheLimitIsGone) {
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

TEST_F(Algos, TheStricterOneOfTwoLimitsHolds) {
  const auto& buying = Send(Limited(Ordered("TMLO:AlgoId=TVOL,VolPct=20,WPx=10;"), 10.1));
  const auto& selling = Send(Selling(Limited(Ordered("TMLO:AlgoId=TVOL,VolPct=20,WPx=9.9;"), 10.1)));
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  EXPECT_EQ(buying.filled, 0);
  EXPECT_EQ(selling.filled, 0);
}

TEST_F(Algos, TvolThresholdTakesMoreWhereThePriceIsGoodAndLessWhereItIsBad) {
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

TEST_F(Algos, TwapSpreadsEvenlyOverItsTimeAndCatchesUp) {
  const auto& order =
      Send(Limited(Ordered("TMLO:AlgoId=TWAP,STime=20261120-10:00:00,ETime=20261120-10:10:00;"), 10.02));
  Quote(10, 10.02, 10, 100000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 100);
  Step("10:02:30", 90);
  EXPECT_EQ(order.filled, 200) << "250 are due, in lots 200";
  Quote(10.1, 10.12, 10.1, 100000);
  Step("10:05:00", 150);
  EXPECT_EQ(order.filled, 200) << "beyond the limit";
  Quote(10, 10.02, 10, 100000);
  Step("10:06:00");
  EXPECT_EQ(order.filled, 600);
  Step("10:10:00", 240);
  EXPECT_EQ(order.filled, 1000);
  EXPECT_EQ(order.status, 3);
}

TEST_F(Algos, TwapTakesNoMoreThanItsMaximumOfTheVolume) {
  const auto& order = Send("TMLO:AlgoId=TWAP,STime=20261120-10:00:00,ETime=20261120-10:02:00,MaxVolPct=10;");
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 200) << "500 are due";
}

TEST_F(Algos, VwapGoesInWavesWithAFirstAndALastOneOfTheirOwn) {
  const auto& order = Send(
      "TMLO:AlgoId=VWAP,STime=20261120-10:00:00,ETime=20261120-10:40:00,OpenPct=10,ClosePct=40,Waves=4;");
  Quote(10, 10.02, 10, 100000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 100);
  Step("10:09:59", 539);
  EXPECT_EQ(order.filled, 100);
  Step("10:10:00", 1);
  EXPECT_EQ(order.filled, 300) << "350 are due";
  Step("10:20:00", 600);
  EXPECT_EQ(order.filled, 600);
  Step("10:29:00", 540);
  EXPECT_EQ(order.filled, 600);
  Step("10:30:00");
  EXPECT_EQ(order.filled, 1000);
}

TEST_F(Algos, VwapWithoutWavesOfItsOwnGoesInTwelve) {
  host::TCustomClientOrder wanted =
      Ordered("TMLO:AlgoId=VWAP,STime=20261120-10:00:00,ETime=20261120-10:12:00;");
  wanted.quantity = 2400;
  const auto& order = Send(wanted);
  Quote(10, 10.02, 10, 100000);
  Step("10:00:30", 30);
  EXPECT_EQ(order.filled, 200);
  Step("10:06:30", 360);
  EXPECT_EQ(order.filled, 1400);
}

TEST_F(Algos, IcebergRestsAtItsOwnSideAndShowsAPartAtATime) {
  const auto& order = Send("TMLO:AlgoId=ICEBERG,ShowQty=200;");
  Quote(10, 10.02, 10.02, 5000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 0) << "nobody sold at the bid";
  Quote(10, 10.02, 10, 5000);
  Step("10:02:00");
  EXPECT_EQ(order.filled, 200) << "a fifth of the volume were 1,000";
  EXPECT_EQ(Average(order), "10");
  Quote(10, 10.02, 10, 500);
  Step("10:03:00");
  EXPECT_EQ(order.filled, 300) << "a fifth of the volume";
  Quote(10, 10.02, 10, 5000);
  Step("10:04:00");
  EXPECT_EQ(order.filled, 400) << "what was left on display";
  Step("10:05:00");
  EXPECT_EQ(order.filled, 600);
}

TEST_F(Algos, IcebergVariesWhatItShowsUpToItsMaximum) {
  host::TCustomClientOrder wanted = Ordered("TMLO:AlgoId=ICEBERG,ShowQty=1000,RandPct=50,MaxShowQty=1200;");
  wanted.quantity = 1'000'000;
  const auto& order = Send(wanted);
  Quote(10, 10.02, 10, 100000);
  double least = 1e9;
  double most = 0;
  for (int i = 0; i < 200; ++i) {
    const double before = order.filled;
    Step("10:01:00");
    least = std::min(least, order.filled - before);
    most = std::max(most, order.filled - before);
  }
  EXPECT_EQ(least, 500) << "1,000 less a half";
  EXPECT_EQ(most, 1200) << "1,000 and a half, held to the maximum";
}

TEST_F(Algos, StopBeginsAtItsPriceAndThenGoesOn) {
  const auto& order = Send(Selling(Ordered("TMMO:AlgoId=STOP,StopLossPx=9.9,StopQty=600;")));
  Quote(9.9, 9.92, 9.92, 5000, 400, 400);
  Step("10:01:00");
  EXPECT_EQ(order.status, 0);
  EXPECT_EQ(order.filled, 0);
  Quote(9.88, 9.9, 9.9, 5000, 400, 400);
  Step("10:02:00");
  EXPECT_EQ(order.status, 2);
  EXPECT_EQ(order.filled, 400) << "what is on offer";
  Quote(9.98, 10, 10, 0, 400, 400);
  Step("10:03:00");
  EXPECT_EQ(order.filled, 600) << "up to the stop quantity";
  EXPECT_EQ(Average(order), "9.913333333333334") << "400 at 9.88 and 200 at 9.98";
  Step("10:04:00");
  EXPECT_EQ(order.filled, 600);
}

TEST_F(Algos, StopOfABuyerBeginsAtItsPriceOrAbove) {
  const auto& order = Send("TMMO:AlgoId=STOP,StopLossPx=10.1;");
  Quote(10, 10.02, 10.02, 100);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 0);
  Quote(10.1, 10.12, 10.12, 100);
  Step("10:02:00");
  EXPECT_EQ(order.filled, 1000);
}

TEST_F(Algos, StopWithoutAPriceNeverBegins) {
  const auto& order = Send("TMMO:AlgoId=STOP;");
  Quote(10, 10.02, 10.02, 100);
  Step("10:01:00");
  EXPECT_EQ(order.status, 0);
}

TEST_F(Algos, PegFollowsItsReferenceAtItsDistance) {
  const auto& order = Send("TMLO:AlgoId=PEG,TickDiff=-1,Ref=4,MaxVolPct=10;");
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 0) << "it bids 9.98";
  Quote(10, 10.02, 9.98, 2000);
  Step("10:02:00");
  EXPECT_EQ(order.filled, 200);
  EXPECT_EQ(Average(order), "9.98");
  Quote(9.5, 9.51, 9.49, 2000);
  Step("10:03:00");
  EXPECT_EQ(order.filled, 400);
  EXPECT_EQ(Average(order), "9.735") << "200 at 9.98 and 200 at 9.49";
}

TEST_F(Algos, PegShowsAPartAtATime) {
  const auto& order = Send("TMLO:AlgoId=PEG,ShowQty=100,Ref=4,MaxVolPct=50;");
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 100);
}

TEST_F(Algos, MocTakesItsPartOfTheLastFiveMinutes) {
  const auto& order = Send("TMLO:AlgoId=MOC,MaxVolPct=20,ClosePct=50;");
  Quote(10, 10.02, 10, 3000);
  Step("10:01:00");
  Step("15:55:00");
  EXPECT_EQ(order.filled, 0);
  EXPECT_EQ(order.status, 0);
  Step("15:56:00");
  EXPECT_EQ(order.filled, 600) << "the smaller one of both percentages";
  Step("16:00:00");
  EXPECT_EQ(order.filled, 1000);
}

TEST_F(Algos, CloseTakesWhatIsOnOfferInTheLastFiveMinutes) {
  const auto& order = Send("TMLO:AlgoId=CLOSE;");
  Quote(10, 10.02, 10, 0, 500, 700);
  Step("15:55:00");
  EXPECT_EQ(order.filled, 0);
  Step("15:56:00");
  EXPECT_EQ(order.filled, 700);
  Step("16:00:00");
  EXPECT_EQ(order.filled, 1000);
}

TEST_F(Algos, OpenTakesWhatIsOnOfferInTheFirstFiveMinutes) {
  const auto& order = Send(Selling(Ordered("TMLO:AlgoId=OPEN;")));
  Quote(10, 10.02, 10, 0, 500, 700);
  Step("09:30:00");
  EXPECT_EQ(order.filled, 0);
  Step("09:31:00");
  EXPECT_EQ(order.filled, 500);
  Step("09:35:01", 1);
  EXPECT_EQ(order.filled, 500);
  EXPECT_EQ(order.status, 7);
}

TEST_F(Algos, SniperTakesItsPartOfAnOfferThatIsLargeEnough) {
  const auto& order = Send(Limited(Ordered("TMLO:AlgoId=SNIPER,MinQty=600,ServePct=40;"), 10));
  Quote(10, 10.02, 10, 5000, 1000, 1000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 0) << "too dear";
  Quote(9.99, 10, 10, 5000, 1000, 500);
  Step("10:02:00");
  EXPECT_EQ(order.filled, 0) << "too little";
  Quote(9.99, 10, 10, 0, 1000, 1200);
  Step("10:03:00");
  EXPECT_EQ(order.filled, 400) << "of 480, at once, whatever trades";
}

TEST_F(Algos, ShortSellRestsAtItsReference) {
  const auto& order = Send(Selling(Ordered("TMLO:AlgoId=SHORT SELL,Ref=5;")));
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 0);
  Quote(10, 10.02, 10.02, 2000);
  Step("10:02:00");
  EXPECT_EQ(order.filled, 400) << "a fifth of the volume";
  EXPECT_EQ(Average(order), "10.02");
}

TEST_F(Algos, AlgorithmsAreKnownApartFromLetterCase) {
  EXPECT_NE(FindPaperAlgo("tvol threshold"), nullptr);
  EXPECT_EQ(FindPaperAlgo("TVOL threshold")->code, "TVOL Threshold");
  EXPECT_EQ(FindPaperAlgo("TVOL "), nullptr);
  EXPECT_EQ(FindPaperAlgo(""), nullptr);
}

}  // namespace
}  // namespace algo::terminal::paper::tests
