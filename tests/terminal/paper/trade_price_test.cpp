#include "terminal/paper/trade_price.h"

#include <gtest/gtest.h>

namespace algo::terminal::paper {
namespace {

constexpr bool Buy = true;
constexpr bool Sell = false;
const TSpreadTable Spread{{0, 0.01}, {10, 0.02}};

// Last traded at the bid; seen between 9.9 and 10.2 today.
TQuote Quoted() { return {10, 10.04, 1000, 1000, 10, 500, 500, 10, 10.2, 9.9}; }

std::optional<double> Taken(bool buy, double limit) {
  return TradePrice(TPricing::Take, {}, buy, limit, Quoted(), Spread);
}

std::optional<double> Rested(bool buy, double limit, const TAlgoPlan& plan, const TQuote& quote = Quoted()) {
  return TradePrice(TPricing::Rest, plan, buy, limit, quote, Spread);
}

TAlgoPlan At(double ref, double tickDiff = 0, double diffPct = 0) {
  TAlgoPlan plan;
  plan.ref = ref;
  plan.tickDiff = tickDiff;
  plan.diffPct = diffPct;
  return plan;
}

TEST(TradePrice, TheStricterLimitIsTheLowerOneToABuyerAndTheHigherOneToASeller) {
  EXPECT_EQ(StricterLimit(Buy, 10, 11), 10);
  EXPECT_EQ(StricterLimit(Sell, 10, 11), 11);
  EXPECT_EQ(StricterLimit(Buy, 0, 11), 11);
  EXPECT_EQ(StricterLimit(Sell, 10, 0), 10);
  EXPECT_EQ(StricterLimit(Sell, 0, 0), 0);
}

TEST(TradePrice, TakingIsAtTheOtherSideWithinTheLimit) {
  EXPECT_EQ(Taken(Buy, 0), 10.04);
  EXPECT_EQ(Taken(Buy, 10.04), 10.04);
  EXPECT_EQ(Taken(Buy, 10.02), std::nullopt);
  EXPECT_EQ(Taken(Sell, 0), 10);
  EXPECT_EQ(Taken(Sell, 10), 10);
  EXPECT_EQ(Taken(Sell, 10.02), std::nullopt);
}

TEST(TradePrice, NobodyTradesWithASideThatIsEmpty) {
  TQuote quote = Quoted();
  quote.bid = 0;
  EXPECT_EQ(TradePrice(TPricing::Take, {}, Sell, 0, quote, Spread), std::nullopt);
  EXPECT_EQ(Rested(Sell, 0, At(5), quote), std::nullopt);
}

TEST(TradePrice, ARestingOrderTradesAtItsOwnSideOnceSomebodyDid) {
  EXPECT_EQ(Rested(Buy, 0, {}), 10);
  EXPECT_EQ(Rested(Sell, 0, {}), std::nullopt) << "the last trade was at the bid";
  TQuote quote = Quoted();
  quote.last = 10.04;
  EXPECT_EQ(Rested(Buy, 0, {}, quote), std::nullopt);
  EXPECT_EQ(Rested(Sell, 0, {}, quote), 10.04);
  quote.stepVolume = 0;
  EXPECT_EQ(Rested(Sell, 0, {}, quote), std::nullopt) << "nobody traded in this step";
}

TEST(TradePrice, ARestingOrderStaysWithinItsLimit) {
  EXPECT_EQ(Rested(Buy, 10, {}), 10);
  EXPECT_EQ(Rested(Buy, 9.99, {}), std::nullopt);
  TQuote quote = Quoted();
  quote.last = 9.9;
  EXPECT_EQ(Rested(Buy, 9.955, {}, quote), 9.95) << "off the grid, a buyer's limit is rounded down";
  quote.last = 10.2;
  EXPECT_EQ(Rested(Sell, 10.05, {}, quote), 10.06);
}

TEST(TradePrice, EveryReferencePriceStandsForWhatItIsCalled) {
  TQuote quote = Quoted();
  quote.last = 10.02;
  const auto sold = [&](double ref) { return Rested(Sell, 0, At(ref), quote); };
  EXPECT_EQ(sold(2), 10) << "the opposite side's price is there to be taken";
  EXPECT_EQ(sold(3), 10.02);
  EXPECT_EQ(sold(4), 10);
  EXPECT_EQ(sold(8), 10) << "a seller at the day's low takes the better bid";
  EXPECT_EQ(sold(11), 10.02);
  EXPECT_EQ(sold(1), std::nullopt);
  EXPECT_EQ(sold(5), std::nullopt);
  EXPECT_EQ(sold(9), std::nullopt);
  EXPECT_EQ(sold(13), std::nullopt) << "there is no book here, so that its own side stands in";
  EXPECT_EQ(sold(1e300), std::nullopt);
  quote.last = 10.2;
  EXPECT_EQ(sold(1), 10.04);
  EXPECT_EQ(sold(5), 10.04);
  EXPECT_EQ(sold(9), 10.2);
  EXPECT_EQ(sold(13), 10.04);
  quote.high = 0;
  EXPECT_EQ(sold(9), 10.04) << "without a trade there is no high";
}

TEST(TradePrice, DifferencesAreAddedToTheReferencePrice) {
  TQuote quote = Quoted();
  quote.last = 9.5;
  EXPECT_EQ(Rested(Buy, 0, At(4, -1), quote), 9.98);
  EXPECT_EQ(Rested(Buy, 0, At(4, 1), quote), 10.02);
  EXPECT_EQ(Rested(Buy, 0, At(4, 5), quote), 10.04) << "at or beyond the ask, the ask is the price";
  EXPECT_EQ(Rested(Buy, 0, At(4, 0, -1), quote), 9.9);
  EXPECT_EQ(Rested(Buy, 9.6, At(4, 1), quote), 9.6);
}

TEST(TradePrice, APriceThatIsNoneBuysNothingAndSellsWithinTheLimit) {
  EXPECT_EQ(Rested(Buy, 10.04, At(4, -1000)), std::nullopt);
  EXPECT_EQ(Rested(Sell, 0, At(4, -1000)), 10);
  EXPECT_EQ(Rested(Sell, 10.02, At(4, -1000)), std::nullopt);
}

}  // namespace
}  // namespace algo::terminal::paper
