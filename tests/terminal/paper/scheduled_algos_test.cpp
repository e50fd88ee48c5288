// TWAP and VWAP, which spread an order over its time, with worked examples.
// Unless a test says otherwise, an order is for 1,000 AAA in lots of 100, is sent at 10:00:00, and steps take
// a minute.

#include "tests/terminal/paper/sample_market.h"

namespace algo::terminal::paper::tests {
namespace {

using ScheduledAlgos = TPaperTest;

TEST_F(ScheduledAlgos, TwapSpreadsEvenlyOverItsTimeAndCatchesUp) {
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

TEST_F(ScheduledAlgos, TwapTakesNoMoreThanItsMaximumOfTheVolume) {
  const auto& order = Send("TMLO:AlgoId=TWAP,STime=20261120-10:00:00,ETime=20261120-10:02:00,MaxVolPct=10;");
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 200) << "500 are due";
}

TEST_F(ScheduledAlgos, VwapGoesInWavesWithAFirstAndALastOneOfTheirOwn) {
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

TEST_F(ScheduledAlgos, VwapWithoutWavesOfItsOwnGoesInTwelve) {
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

}  // namespace
}  // namespace algo::terminal::paper::tests
