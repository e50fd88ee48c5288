// STOP, SNIPER, MOC, CLOSE and OPEN, which wait for a price, an offer or a time of day, with worked examples.
// Unless a test says otherwise, an order is for 1,000 AAA in lots of 100, is sent at 10:00:00, and steps take
// a minute.

#include "tests/terminal/paper/sample_market.h"

namespace algo::terminal::paper::tests {
namespace {

using WaitingAlgos = TPaperTest;

TEST_F(WaitingAlgos, StopBeginsAtItsPriceAndThenGoesOn) {
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

TEST_F(WaitingAlgos, StopOfABuyerBeginsAtItsPriceOrAbove) {
  const auto& order = Send("TMMO:AlgoId=STOP,StopLossPx=10.1;");
  Quote(10, 10.02, 10.02, 100);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 0);
  Quote(10.1, 10.12, 10.12, 100);
  Step("10:02:00");
  EXPECT_EQ(order.filled, 1000);
}

TEST_F(WaitingAlgos, StopWithoutAPriceNeverBegins) {
  const auto& order = Send("TMMO:AlgoId=STOP;");
  Quote(10, 10.02, 10.02, 100);
  Step("10:01:00");
  EXPECT_EQ(order.status, 0);
}

TEST_F(WaitingAlgos, MocTakesItsPartOfTheLastFiveMinutes) {
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

TEST_F(WaitingAlgos, CloseTakesWhatIsOnOfferInTheLastFiveMinutes) {
  const auto& order = Send("TMLO:AlgoId=CLOSE;");
  Quote(10, 10.02, 10, 0, 500, 700);
  Step("15:55:00");
  EXPECT_EQ(order.filled, 0);
  Step("15:56:00");
  EXPECT_EQ(order.filled, 700);
  Step("16:00:00");
  EXPECT_EQ(order.filled, 1000);
}

TEST_F(WaitingAlgos, OpenTakesWhatIsOnOfferInTheFirstFiveMinutes) {
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

TEST_F(WaitingAlgos, SniperTakesItsPartOfAnOfferThatIsLargeEnough) {
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

}  // namespace
}  // namespace algo::terminal::paper::tests
