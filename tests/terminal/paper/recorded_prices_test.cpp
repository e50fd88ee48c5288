// Recorded prices, replayed through a market at several speeds.

#include "terminal/paper/recorded_prices.h"

#include "tests/terminal/paper/sample_market.h"

namespace algo::terminal::paper {
namespace {

using tests::ItemOf;
using tests::SampleTables;

class TReplay : public testing::Test {
 protected:
  static TRecording Recorded() {
    return {{0, 0, 10, 10.02, 10, 0},
            {1, 0, 10.02, 10.04, 10.04, 300},
            {2, 0, 10.04, 10.06, 10.04, 200},
            {2, 1, 60.55, 60.6, 60.6, 800},
            {10, 0, 10, 10.02, 10, 500}};
  }
  std::unique_ptr<TPaperMarket> Market(double speed) {
    const TMarketTables tables = SampleTables();
    return std::make_unique<TPaperMarket>(host, tables,
                                          std::make_unique<TRecordedPrices>(Recorded(), tables, speed));
  }
  terminal::tests::TEventNotes notes;
  TMemoryHost host{notes};
};

TEST_F(TReplay, AtSpeedOneASecondIsASecond) {
  const auto market = Market(1);
  market->Advance(1);
  EXPECT_EQ(market->Quote("AAA")->bid, 10.02);
  EXPECT_EQ(market->Quote("AAA")->stepVolume, 300);
  EXPECT_EQ(market->Quote("AAA")->askSize, 300);
  EXPECT_EQ(market->Quote("BBB")->last, 60.5);
  market->Advance(0.5);
  EXPECT_EQ(market->Quote("AAA")->stepVolume, 0);
  EXPECT_EQ(market->Quote("AAA")->bid, 10.02);
  market->Advance(0.5);
  EXPECT_EQ(market->Quote("AAA")->bid, 10.04);
  EXPECT_EQ(market->Quote("AAA")->volume, 500);
  EXPECT_EQ(market->Quote("BBB")->last, 60.6);
  EXPECT_EQ(ItemOf("BBB").FieldText(3), "60.6");
  market->Advance(7.9);
  EXPECT_EQ(market->Quote("AAA")->bid, 10.04);
  market->Advance(0.1);
  EXPECT_EQ(market->Quote("AAA")->bid, 10);
}

TEST_F(TReplay, AtSpeedTenATenthIsASecond) {
  const auto market = Market(10);
  market->Advance(0.1);
  EXPECT_EQ(market->Quote("AAA")->bid, 10.02);
  market->Advance(0.1);
  EXPECT_EQ(market->Quote("AAA")->bid, 10.04);
  for (int i = 0; i < 8; ++i) market->Advance(0.1);
  EXPECT_EQ(market->Quote("AAA")->bid, 10);
  EXPECT_EQ(market->Quote("AAA")->volume, 1000);
}

TEST_F(TReplay, ALineIsNotLateForWhatManySmallStepsLose) {
  const auto market = Market(1);
  for (int i = 0; i < 10; ++i) market->Advance(0.1);
  EXPECT_EQ(market->Quote("AAA")->bid, 10.02);
}

TEST_F(TReplay, AllLinesOfAStepCountAndTheLastOneStands) {
  const auto market = Market(10);
  market->Advance(1);
  EXPECT_EQ(market->Quote("AAA")->stepVolume, 1000);
  EXPECT_EQ(market->Quote("AAA")->last, 10);
}

TEST_F(TReplay, AfterTheEndNothingMoves) {
  TRecordedPrices prices(Recorded(), SampleTables(), 1);
  std::vector<TQuote> quotes(2);
  prices.Advance(9, quotes);
  EXPECT_FALSE(prices.AtEnd());
  prices.Advance(1, quotes);
  EXPECT_TRUE(prices.AtEnd());
  prices.Advance(100, quotes);
  EXPECT_EQ(quotes[0].bid, 10);
  EXPECT_EQ(quotes[1].bidSize, 800);
}

TEST_F(TReplay, ASmallTradeStillLeavesALotOnOffer) {
  TRecordedPrices prices({{0, 1, 60.5, 60.55, 60.5, 0}}, SampleTables(), 1);
  std::vector<TQuote> quotes(2);
  prices.Advance(0, quotes);
  EXPECT_EQ(quotes[1].bidSize, 400);
}

}  // namespace
}  // namespace algo::terminal::paper
