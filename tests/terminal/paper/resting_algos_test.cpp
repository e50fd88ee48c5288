// ICEBERG, PEG and SHORT SELL, which rest at a price of their own, with worked examples.
// Unless a test says otherwise, an order is for 1,000 AAA in lots of 100, is sent at 10:00:00, and steps take
// a minute.

#include <algorithm>

#include "tests/terminal/paper/sample_market.h"

namespace algo::terminal::paper::tests {
namespace {

using RestingAlgos = TPaperTest;

TEST_F(RestingAlgos, IcebergRestsAtItsOwnSideAndShowsAPartAtATime) {
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

TEST_F(RestingAlgos, IcebergVariesWhatItShowsUpToItsMaximum) {
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

TEST_F(RestingAlgos, PegFollowsItsReferenceAtItsDistance) {
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

TEST_F(RestingAlgos, PegShowsAPartAtATime) {
  const auto& order = Send("TMLO:AlgoId=PEG,ShowQty=100,Ref=4,MaxVolPct=50;");
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 100);
}

TEST_F(RestingAlgos, ShortSellRestsAtItsReference) {
  const auto& order = Send(Selling(Ordered("TMLO:AlgoId=SHORT SELL,Ref=5;")));
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 0);
  Quote(10, 10.02, 10.02, 2000);
  Step("10:02:00");
  EXPECT_EQ(order.filled, 400) << "a fifth of the volume";
  EXPECT_EQ(Average(order), "10.02");
}

}  // namespace
}  // namespace algo::terminal::paper::tests
