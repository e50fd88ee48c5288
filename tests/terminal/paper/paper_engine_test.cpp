// The life of an order apart from its fills: how it begins and ends, and what the journal records.

#include "terminal/paper/paper_engine.h"

#include <limits>

#include "tests/terminal/paper/sample_market.h"

namespace algo::terminal::paper::tests {
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
  EXPECT_EQ(storage.lines, (std::vector<std::string>{
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
  storage.lines.clear();
  Step("10:01:00");
  for (const auto* order : {&unreadable, &unknownAlgo, &unknownSymbol, &empty, &noNumber}) {
    EXPECT_EQ(order->status, -1) << order->key;
  }
  EXPECT_EQ(storage.lines, (std::vector<std::string>{
                               "N1: paper reject the algo parameters cannot be read",
                               "N2: paper reject the algorithm is unknown here",
                               "N3: paper reject the symbol is unknown here",
                               "N4: paper reject the quantity is not above 0",
                               "N5: paper reject the quantity is not above 0",
                           }));
  storage.lines.clear();
  Step("10:02:00");
  EXPECT_TRUE(storage.lines.empty());
}

TEST_F(Engine, OrdersWithoutAnAlgorithmAreLeftAlone) {
  const auto& order = Send("");
  Quote(10, 10.02, 10, 100000);
  Step("10:01:00");
  EXPECT_EQ(order.status, 0);
  host::TCustomClientOrder filled(order);
  filled.filled = 500;
  filled.status = 2;
  host.Journal().Record({"somebody", "fill", "500"}, filled);
  storage.lines.clear();
  Step("10:02:00");
  EXPECT_EQ(order.filled, 500);
  EXPECT_TRUE(storage.lines.empty());
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
  EXPECT_EQ(storage.lines, (std::vector<std::string>{"OLD: paper fill 300 at 10.02"}));
}

TEST(EngineLife, AnEngineThatIsGoneIsToldNothing) {
  terminal::tests::TEventNotes notes;
  TMemoryHost host(notes);
  TPaperMarket market(host, SampleTables(), 1);
  {
    const TPaperEngine engine(host, market, 1);
    EXPECT_FALSE(host.Journal().Listeners().Empty());
  }
  EXPECT_TRUE(host.Journal().Listeners().Empty());
}

TEST_F(Engine, AFillThatCannotBeStoredHasNotHappened) {
  const auto& order = Send(Tvol);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  storage.failing = true;
  market.Advance(60);
  EXPECT_THROW(engine.Advance(At("10:02:00"), 60), EError);
  EXPECT_EQ(order.filled, 200);
  storage.failing = false;
  Step("10:03:00");
  EXPECT_EQ(order.filled, 400);
  EXPECT_EQ(Average(order), "10.02");
}

TEST_F(Engine, ARejectionThatCannotBeStoredComesAgain) {
  const auto& order = Send("nonsense");
  storage.failing = true;
  EXPECT_THROW(Step("10:01:00"), EError);
  EXPECT_EQ(order.status, 0);
  storage.failing = false;
  Step("10:02:00");
  EXPECT_EQ(order.status, -1);
}

TEST_F(Engine, WhoeverIsToldOfAFillMaySendOrders) {
  int sent = 0;
  host.Journal().Listeners().Add(
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
}  // namespace algo::terminal::paper::tests
