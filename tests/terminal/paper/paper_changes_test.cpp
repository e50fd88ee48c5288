// What becomes of orders that are changed or cancelled while they are worked.

#include "terminal/paper/paper_engine.h"
#include "tests/terminal/paper/sample_market.h"

namespace algo::terminal::paper::tests {
namespace {

using Changes = TPaperTest;

constexpr const char* Tvol = "TMLO:AlgoId=TVOL,VolPct=20;";

TEST_F(Changes, AChangedOrderGoesOnWithTheNewFigures) {
  const auto& order = Send(Tvol);
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  host::TCustomClientOrder changed(order);
  changed.quantity = 2000;
  changed.price = 10;
  changed.SetTextProperty(host::AlgoTextProperty, "TMLO:AlgoId=TVOL,VolPct=50;");
  Change(changed);
  Step("10:02:00");
  EXPECT_EQ(order.filled, 400) << "the offer is above the new limit";
  Quote(9.98, 10, 10, 2000);
  Step("10:03:00");
  EXPECT_EQ(order.filled, 1400) << "half of the volume";
}

TEST_F(Changes, AChangeMadeOnAnOldCopyTakesNoFillBack) {
  const auto& order = Send(Tvol);
  host::TCustomClientOrder changed(order);
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  changed.quantity = 3000;
  Change(changed);
  EXPECT_EQ(order.filled, 0) << "as the old copy says, until the next step";
  Quote(10, 10.02, 10, 0);
  Step("10:02:00");
  EXPECT_EQ(order.filled, 400);
  EXPECT_EQ(order.status, 2);
  EXPECT_EQ(Average(order), "10.02");
  EXPECT_EQ(order.quantity, 3000);
}

TEST_F(Changes, AQuantityBelowWhatIsFilledEndsTheOrder) {
  const auto& order = Send(Tvol);
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  host::TCustomClientOrder changed(order);
  for (const double quantity : {300.0, 0.0, -5.0}) {
    changed.quantity = quantity;
    Change(changed);
    Step("10:02:00");
    EXPECT_EQ(order.quantity, 400);
    EXPECT_EQ(order.filled, 400);
    EXPECT_EQ(order.status, 3);
  }
}

TEST_F(Changes, AQuantityOfExactlyWhatIsFilledEndsTheOrder) {
  const auto& order = Send(Tvol);
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  host::TCustomClientOrder changed(order);
  changed.quantity = 400;
  Change(changed);
  Step("10:02:00");
  EXPECT_EQ(order.status, 3);
  EXPECT_EQ(order.filled, 400);
}

TEST_F(Changes, AnOrderThatIsDoneStaysDoneWhateverItIsChangedTo) {
  const auto& order = Send(Tvol);
  host::TCustomClientOrder changed(order);
  EXPECT_TRUE(engine.Cancel(order.key, "trader"));
  changed.quantity = 5000;
  Change(changed);
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  EXPECT_EQ(order.status, 4);
  EXPECT_EQ(order.filled, 0);
}

TEST_F(Changes, TwapSpreadsTheNewRestOverTheTimeThatIsLeft) {
  const auto& order = Send("TMLO:AlgoId=TWAP,STime=20261120-10:00:00,ETime=20261120-10:10:00;");
  Quote(10, 10.02, 10, 100000);
  Step("10:05:00", 300);
  EXPECT_EQ(order.filled, 500);
  host::TCustomClientOrder changed(order);
  changed.quantity = 2500;
  Change(changed);
  Step("10:06:00");
  EXPECT_EQ(order.filled, 900) << "a fifth of the 2,000 that are left";
}

TEST_F(Changes, AnOrderChangedIntoNonsenseIsRejectedWithWhatItHas) {
  const auto& order = Send(Tvol);
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  host::TCustomClientOrder changed(order);
  changed.SetTextProperty(host::AlgoTextProperty, "nonsense");
  Change(changed);
  Step("10:02:00");
  EXPECT_EQ(order.status, -1);
  EXPECT_EQ(order.filled, 400);
}

TEST_F(Changes, ACancelledOrderKeepsWhatItHas) {
  const auto& order = Send(Tvol);
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  EXPECT_TRUE(engine.Cancel("N1", "dealer1"));
  EXPECT_EQ(order.status, 4);
  EXPECT_EQ(order.filled, 400);
  EXPECT_EQ(storage.lines.back(), "N1: dealer1 cancel accepted");
  Step("10:02:00");
  EXPECT_EQ(order.filled, 400);
}

TEST_F(Changes, AnOrderThatIsDoneOrUnknownIsNotCancelled) {
  Send(Tvol);
  EXPECT_TRUE(engine.Cancel("N1", "dealer1"));
  EXPECT_FALSE(engine.Cancel("N1", "dealer1"));
  EXPECT_EQ(storage.lines.back(), "N1: dealer1 cancel refused");
  EXPECT_FALSE(engine.Cancel("N2", "dealer1"));
  EXPECT_EQ(storage.lines.size(), 3u);
}

TEST_F(Changes, AnOrderThatWasNotYetLookedAtCanBeCancelled) {
  const auto& order = Send(Tvol);
  EXPECT_TRUE(engine.Cancel("N1", "dealer1"));
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  EXPECT_EQ(order.status, 4);
  EXPECT_EQ(order.filled, 0);
}

TEST_F(Changes, AnOrderWithoutAnAlgorithmCanBeCancelledAndKeepsWhatItHas) {
  const auto& order = Send("");
  host::TCustomClientOrder filled(order);
  filled.filled = 500;
  filled.status = 2;
  filled.SetNamedText("AveragePrice", "9.9");
  host.Journal().Record({"somebody", "fill", "500"}, filled);
  EXPECT_TRUE(engine.Cancel("N1", "dealer1"));
  EXPECT_EQ(order.status, 4);
  EXPECT_EQ(order.filled, 500);
  EXPECT_EQ(Average(order), "9.9");
  EXPECT_FALSE(engine.Cancel("N1", "dealer1"));
}

}  // namespace
}  // namespace algo::terminal::paper::tests
