#include "terminal/paper/spread_table.h"

#include <gtest/gtest.h>

#include "text/number_text.h"

namespace algo::terminal::paper {
namespace {

const TSpreadTable Table{{0, 0.001}, {0.25, 0.005}, {0.5, 0.01}, {10, 0.02}, {20, 0.05}, {5000, 5}};

TEST(SpreadTable, TheTickIsThatOfTheStepThatThePriceIsIn) {
  EXPECT_EQ(TickAt(Table, 0), 0.001);
  EXPECT_EQ(TickAt(Table, 0.249), 0.001);
  EXPECT_EQ(TickAt(Table, 0.25), 0.005);
  EXPECT_EQ(TickAt(Table, 9.99), 0.01);
  EXPECT_EQ(TickAt(Table, 60.5), 0.05);
  EXPECT_EQ(TickAt(Table, 1e6), 5);
}

TEST(SpreadTable, PricesAreRoundedToTheNearestTickTheUpperOneOfTwo) {
  EXPECT_EQ(RoundToTick(Table, 60.52), 60.5);
  EXPECT_EQ(RoundToTick(Table, 60.53), 60.55);
  EXPECT_EQ(RoundToTick(Table, 5002.5), 5005);
  EXPECT_EQ(RoundToTick(Table, 9.996), 10);
  EXPECT_EQ(RoundToTick(Table, 0), 0);
}

TEST(SpreadTable, PricesAreRoundedDownAndUp) {
  EXPECT_EQ(RoundDownToTick(Table, 60.549), 60.5);
  EXPECT_EQ(RoundUpToTick(Table, 60.501), 60.55);
  EXPECT_EQ(RoundDownToTick(Table, 60.55), 60.55);
  EXPECT_EQ(RoundUpToTick(Table, 60.55), 60.55);
  EXPECT_EQ(RoundUpToTick(Table, 0.2491), 0.25);
}

TEST(SpreadTable, ATickIsAsWideAsWhereItIsTaken) {
  EXPECT_EQ(MoveTicks(Table, 0.25, 1), 0.255);
  EXPECT_EQ(MoveTicks(Table, 0.25, -1), 0.249);
  EXPECT_EQ(MoveTicks(Table, 9.99, 2), 10.02);
  EXPECT_EQ(MoveTicks(Table, 10.02, -2), 9.99);
  EXPECT_EQ(MoveTicks(Table, 5000, -1), 4999.95);
  EXPECT_EQ(MoveTicks(Table, 60.5, 0), 60.5);
}

TEST(SpreadTable, NoPriceIsBelowTheLowestTick) {
  EXPECT_EQ(MoveTicks(Table, 0.002, -5), 0.001);
  EXPECT_EQ(MoveTicks(Table, 0, 0), 0.001);
}

TEST(SpreadTable, EveryPriceOfAWalkUpReadsAsPeopleWriteIt) {
  double price = 0.001;
  for (int i = 0; i < 3000; ++i) {
    const double next = MoveTicks(Table, price, 1);
    ASSERT_GT(next, price);
    ASSERT_EQ(MoveTicks(Table, next, -1), price);
    ASSERT_EQ(RoundToTick(Table, next), next);
    ASSERT_LE(text::PlainNumber(next).size(), 6u) << text::PlainNumber(next);
    price = next;
  }
}

TEST(SpreadTable, AStepThatNoTickEndsAtIsCutShort) {
  const TSpreadTable uneven{{0, 0.03}, {0.1, 0.05}};
  EXPECT_EQ(MoveTicks(uneven, 0.09, 1), 0.1);
  EXPECT_EQ(MoveTicks(uneven, 0.1, -1), 0.09);
  EXPECT_EQ(MoveTicks(uneven, 0.1, 1), 0.15);
}

}  // namespace
}  // namespace algo::terminal::paper
