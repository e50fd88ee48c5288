// What becomes of orders beyond the filling: how they begin, change, end and add up.

#include "terminal/paper/paper_engine.h"

#include <limits>
#include <sstream>

#include "tests/paper/sample_market.h"
#include "text/number_text.h"

namespace algo::terminal::tests {
namespace {

using Engine = TPaperTest;

constexpr const char* Tvol = "TMLO:AlgoId=TVOL,VolPct=20;";

TEST_F(Engine, EachReportIsOnRecord) {
  Send("TMLO:AlgoId=TVOL,VolPct=20,ETime=20261120-10:02:00;");
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  Quote(9.98, 10, 10, 1000);
  Step("10:02:00");
  Step("10:03:00");
  EXPECT_EQ(keeper.lines, (std::vector<std::string>{
                              "N1: trader new accepted",
                              "N1: paper start working",
                              "N1: paper fill 400 at 10.02",
                              "N1: paper fill 200 at 10",
                              "N1: paper expire end time reached",
                          }));
}

TEST_F(Engine, AnOrderBeforeItsStartTimeStaysAccepted) {
  const auto& order = Send("TMLO:AlgoId=TVOL,VolPct=20,STime=20261120-10:05:00;");
  Quote(10, 10.02, 10, 5000);
  Step("10:05:00");
  EXPECT_EQ(order.status, 0);
  EXPECT_EQ(order.filled, 0);
  Step("10:06:00");
  EXPECT_EQ(order.filled, 1000);
}

TEST_F(Engine, OnlyThePartOfAStepThatLiesAfterTheStartCounts) {
  const auto& order = Send("TMLO:AlgoId=TVOL,VolPct=20,STime=20261120-10:00:30;");
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  EXPECT_EQ(order.filled, 200);
}

TEST_F(Engine, AnOrderWhoseTimeIsOverExpiresWithWhatItHas) {
  const auto& order = Send("TMLO:AlgoId=TVOL,VolPct=20,ETime=20261120-10:01:00;");
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  Step("10:01:01", 1);
  EXPECT_EQ(order.status, 7);
  EXPECT_EQ(order.filled, 200);
  EXPECT_EQ(Average(order), "10.02");
  Step("10:02:00");
  EXPECT_EQ(order.filled, 200);
}

TEST_F(Engine, AnOrderWithoutAnEndTimeExpiresAfterTheClose) {
  const auto& order = Send(Tvol);
  Step("10:01:00");
  Step("16:00:00");
  EXPECT_EQ(order.status, 1);
  Step("16:00:01", 1);
  EXPECT_EQ(order.status, 7);
}

TEST_F(Engine, AnOddRestIsNeverFilled) {
  host::TCustomClientOrder wanted = Ordered(Tvol);
  wanted.quantity = 250;
  const auto& order = Send(wanted);
  Quote(10, 10.02, 10, 100000);
  Step("10:01:00");
  Step("10:02:00");
  EXPECT_EQ(order.filled, 200);
  EXPECT_EQ(order.status, 2);
}

TEST_F(Engine, WhatCannotBeWorkedIsRejectedWithAReason) {
  const auto& unreadable = Send("TVOL please");
  const auto& unknownAlgo = Send("TMLO:AlgoId=GUESS;");
  host::TCustomClientOrder elsewhere = Ordered(Tvol);
  elsewhere.symbol = "ZZZ";
  const auto& unknownSymbol = Send(elsewhere);
  host::TCustomClientOrder nothing = Ordered(Tvol);
  nothing.quantity = 0;
  const auto& empty = Send(nothing);
  host::TCustomClientOrder senseless = Ordered(Tvol);
  senseless.quantity = std::numeric_limits<double>::quiet_NaN();
  const auto& noNumber = Send(senseless);
  keeper.lines.clear();
  Step("10:01:00");
  for (const auto* order : {&unreadable, &unknownAlgo, &unknownSymbol, &empty, &noNumber}) {
    EXPECT_EQ(order->status, -1) << order->key;
  }
  EXPECT_EQ(keeper.lines, (std::vector<std::string>{
                              "N1: paper reject the algo parameters cannot be read",
                              "N2: paper reject the algorithm is unknown here",
                              "N3: paper reject the symbol is unknown here",
                              "N4: paper reject the quantity is not above 0",
                              "N5: paper reject the quantity is not above 0",
                          }));
  keeper.lines.clear();
  Step("10:02:00");
  EXPECT_TRUE(keeper.lines.empty());
}

TEST_F(Engine, OrdersWithoutAnAlgorithmAreLeftAlone) {
  const auto& order = Send("");
  Quote(10, 10.02, 10, 100000);
  Step("10:01:00");
  EXPECT_EQ(order.status, 0);
  host::TCustomClientOrder filled(order);
  filled.filled = 500;
  filled.status = 2;
  host.Ledger().Record({"somebody", "fill", "500"}, filled);
  keeper.lines.clear();
  Step("10:02:00");
  EXPECT_EQ(order.filled, 500);
  EXPECT_TRUE(keeper.lines.empty());
}

TEST_F(Engine, OrdersThatWereThereBeforeGoOnWithWhatTheyHave) {
  host::TCustomClientOrder restored = Ordered(Tvol);
  restored.key = "OLD";
  restored.filled = 300;
  restored.status = 2;
  restored.SetNamedText("AveragePrice", "9.9");
  host.Orders().Add(std::make_unique<host::TCustomClientOrder>(restored));
  TPaperEngine later(host, market, 1);
  Quote(10, 10.02, 10, 1500);
  market.Advance(60);
  later.Advance(At("10:01:00"), 60);
  const auto& order = *host.Orders().Find("OLD");
  EXPECT_EQ(order.filled, 600);
  EXPECT_EQ(Average(order), "9.96") << "300 at 9.9 and 300 at 10.02";
  EXPECT_EQ(keeper.lines, (std::vector<std::string>{"OLD: paper fill 300 at 10.02"}));
}

TEST(EngineLife, AnEngineThatIsGoneIsToldNothing) {
  TEventNotes notes;
  TMemoryHost host(notes);
  TPaperMarket market(host, SampleTables(), 1);
  {
    const TPaperEngine engine(host, market, 1);
    EXPECT_FALSE(host.Ledger().Listeners().Empty());
  }
  EXPECT_TRUE(host.Ledger().Listeners().Empty());
}

// Changes

TEST_F(Engine, AChangedOrderGoesOnWithTheNewFigures) {
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

TEST_F(Engine, AChangeMadeOnAnOldCopyTakesNoFillBack) {
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

TEST_F(Engine, AQuantityBelowWhatIsFilledEndsTheOrder) {
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

TEST_F(Engine, AQuantityOfExactlyWhatIsFilledEndsTheOrder) {
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

TEST_F(Engine, AnOrderThatIsDoneStaysDoneWhateverItIsChangedTo) {
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

TEST_F(Engine, TwapSpreadsTheNewRestOverTheTimeThatIsLeft) {
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

TEST_F(Engine, AnOrderChangedIntoNonsenseIsRejectedWithWhatItHas) {
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

// Cancelling

TEST_F(Engine, ACancelledOrderKeepsWhatItHas) {
  const auto& order = Send(Tvol);
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  EXPECT_TRUE(engine.Cancel("N1", "dealer1"));
  EXPECT_EQ(order.status, 4);
  EXPECT_EQ(order.filled, 400);
  EXPECT_EQ(keeper.lines.back(), "N1: dealer1 cancel accepted");
  Step("10:02:00");
  EXPECT_EQ(order.filled, 400);
}

TEST_F(Engine, AnOrderThatIsDoneOrUnknownIsNotCancelled) {
  Send(Tvol);
  EXPECT_TRUE(engine.Cancel("N1", "dealer1"));
  EXPECT_FALSE(engine.Cancel("N1", "dealer1"));
  EXPECT_EQ(keeper.lines.back(), "N1: dealer1 cancel refused");
  EXPECT_FALSE(engine.Cancel("N2", "dealer1"));
  EXPECT_EQ(keeper.lines.size(), 3u);
}

TEST_F(Engine, AnOrderThatWasNotYetLookedAtCanBeCancelled) {
  const auto& order = Send(Tvol);
  EXPECT_TRUE(engine.Cancel("N1", "dealer1"));
  Quote(10, 10.02, 10, 2000);
  Step("10:01:00");
  EXPECT_EQ(order.status, 4);
  EXPECT_EQ(order.filled, 0);
}

TEST_F(Engine, AnOrderWithoutAnAlgorithmCanBeCancelledAndKeepsWhatItHas) {
  const auto& order = Send("");
  host::TCustomClientOrder filled(order);
  filled.filled = 500;
  filled.status = 2;
  filled.SetNamedText("AveragePrice", "9.9");
  host.Ledger().Record({"somebody", "fill", "500"}, filled);
  EXPECT_TRUE(engine.Cancel("N1", "dealer1"));
  EXPECT_EQ(order.status, 4);
  EXPECT_EQ(order.filled, 500);
  EXPECT_EQ(Average(order), "9.9");
  EXPECT_FALSE(engine.Cancel("N1", "dealer1"));
}

// Parents and children

TEST_F(Engine, AParentShowsTheSumOfItsChildren) {
  const auto& parent = SendParent(2000);
  const auto& first = SendChild(parent, "TMLO:AlgoId=TVOL,VolPct=20;", 1000);
  const auto& second = SendChild(parent, "TMLO:AlgoId=TVOL,VolPct=40;", 1000);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  EXPECT_EQ(first.filled, 200);
  EXPECT_EQ(second.filled, 400);
  EXPECT_EQ(parent.filled, 600);
  EXPECT_EQ(parent.status, 2);
  EXPECT_EQ(Average(parent), "10.02");
  Quote(10, 10.12, 10, 100000);
  Step("10:02:00");
  EXPECT_EQ(parent.filled, 2000);
  EXPECT_EQ(parent.status, 3);
  EXPECT_EQ(Average(parent), "10.09") << "600 at 10.02 and 1,400 at 10.12";
}

TEST_F(Engine, AParentCountsWhatOthersFilledOfAChild) {
  const auto& parent = SendParent(2000);
  const auto& child = SendChild(parent, "", 1000);
  Step("10:01:00");
  host::TCustomClientOrder filled(child);
  filled.filled = 500;
  filled.SetNamedText("AveragePrice", "9.9");
  host.Ledger().Record({"somebody", "fill", "500"}, filled);
  Step("10:02:00");
  EXPECT_EQ(parent.filled, 500);
  EXPECT_EQ(Average(parent), "9.9");
}

TEST_F(Engine, AParentIsNotWorkedItself) {
  host::TCustomClientOrder wanted = Ordered(Tvol);
  wanted.flags = host::WorkMark | host::WorkParentMark;
  const auto& parent = Send(wanted);
  Quote(10, 10.02, 10, 100000);
  Step("10:01:00");
  Step("17:00:00");
  EXPECT_EQ(parent.filled, 0);
  EXPECT_EQ(parent.status, 0);
}

TEST_F(Engine, OrdersThatOnlyNameAParentAreNotItsChildren) {
  const auto& parent = SendParent(2000);
  host::TCustomClientOrder stranger = Ordered(Tvol);
  stranger.parentNo = parent.orderNo;
  Send(stranger);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  EXPECT_EQ(parent.filled, 0);
}

TEST_F(Engine, AChildDoesNotInheritTheAverageOfItsParent) {
  const auto& parent = SendParent(2000);
  SendChild(parent, Tvol, 500);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  host::TCustomClientOrder copy(parent);
  copy.filled = 0;
  copy.flags = host::WorkChildMark;
  copy.parentNo = parent.orderNo;
  copy.quantity = 500;
  copy.SetTextProperty(host::AlgoTextProperty, "TMLO:AlgoId=TVOL,STime=20261120-15:00:00;");
  const auto& child = Send(copy);
  EXPECT_EQ(Average(child), "10.02");
  Step("10:02:00");
  EXPECT_EQ(Average(child), "");
}

TEST_F(Engine, CancellingAParentCancelsItsChildrenThatAreNotDone) {
  const auto& parent = SendParent(3000);
  const auto& done = SendChild(parent, "TMLO:AlgoId=TVOL,VolPct=50;", 200);
  const auto& live = SendChild(parent, Tvol, 1000);
  const auto& other = Send(Tvol);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  keeper.lines.clear();
  EXPECT_TRUE(engine.Cancel(parent.key, "dealer1"));
  EXPECT_EQ(keeper.lines, (std::vector<std::string>{
                              "N3: dealer1 cancel accepted",
                              "N1: dealer1 cancel accepted",
                          }));
  EXPECT_EQ(done.status, 3);
  EXPECT_EQ(live.status, 4);
  EXPECT_EQ(parent.status, 4);
  EXPECT_EQ(other.status, 2);
  Step("10:02:00");
  EXPECT_EQ(parent.filled, 400);
  EXPECT_EQ(parent.status, 4);
}

TEST_F(Engine, AChildThatIsCutFromACancelledParentIsRejected) {
  const auto& parent = SendParent(3000);
  engine.Cancel(parent.key, "dealer1");
  const auto& child = SendChild(parent, Tvol, 1000);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  EXPECT_EQ(child.status, -1);
  EXPECT_EQ(keeper.lines.back(), "N2: paper reject the parent order is done");
}

TEST_F(Engine, AParentChangedBelowWhatIsFilledIsFilled) {
  const auto& parent = SendParent(2000);
  SendChild(parent, "TMLO:AlgoId=TVOL,VolPct=40;", 1000);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  host::TCustomClientOrder changed(parent);
  changed.quantity = 300;
  Change(changed);
  Quote(10, 10.02, 10, 0);
  Step("10:02:00");
  EXPECT_EQ(parent.status, 3);
  EXPECT_EQ(parent.filled, 400);
  EXPECT_EQ(parent.quantity, 400);
}

// Failures

TEST_F(Engine, AFillThatCannotBeKeptHasNotHappened) {
  const auto& order = Send(Tvol);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  keeper.failing = true;
  market.Advance(60);
  EXPECT_THROW(engine.Advance(At("10:02:00"), 60), EError);
  EXPECT_EQ(order.filled, 200);
  keeper.failing = false;
  Step("10:03:00");
  EXPECT_EQ(order.filled, 400);
  EXPECT_EQ(Average(order), "10.02");
}

TEST_F(Engine, ARejectionThatCannotBeKeptComesAgain) {
  const auto& order = Send("nonsense");
  keeper.failing = true;
  EXPECT_THROW(Step("10:01:00"), EError);
  EXPECT_EQ(order.status, 0);
  keeper.failing = false;
  Step("10:02:00");
  EXPECT_EQ(order.status, -1);
}

TEST_F(Engine, WhoeverIsToldOfAFillMaySendOrders) {
  int sent = 0;
  host.Ledger().Listeners().Add(
      [&](const host::TCustomClientOrder& order) {
        if (order.filled > 0 && sent++ < 3) Send(Tvol);
      },
      this);
  Send(Tvol);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  Step("10:02:00");
  EXPECT_EQ(host.Orders().All().size(), 4u);
  EXPECT_EQ(host.Orders().Find("N2")->filled, 200);
}

}  // namespace
}  // namespace algo::terminal::tests
