// The points of a grid, one after the other.

#include "forms/step_grid.h"

#include <gtest/gtest.h>

#include "tests/forms/sample_form.h"

namespace algo::forms::tests {
namespace {

struct TStepGridTest : testing::Test {
  const TStepGrid lots{{{.from = 0, .width = 400}}};
  const TStepGrid ticks{{{0, 0.001}, {0.25, 0.005}, {20, 0.05}, {100, 0.1}}, 0.001};
};

TEST_F(TStepGridTest, OneWithoutRangesIsEmpty) {
  EXPECT_TRUE(TStepGrid().Empty());
  EXPECT_FALSE(lots.Empty());
}

TEST_F(TStepGridTest, StepsGoFromPointToPoint) {
  EXPECT_EQ(lots.Stepped(0, 1), 400);
  EXPECT_EQ(lots.Stepped(800, -1), 400);
  EXPECT_EQ(lots.Stepped(800, 3), 2000);
  EXPECT_EQ(lots.Stepped(800, 0), 800);
}

TEST_F(TStepGridTest, FromBetweenTwoPointsTheFirstStepGoesToTheNextOne) {
  EXPECT_EQ(lots.Stepped(500, 1), 800);
  EXPECT_EQ(lots.Stepped(500, -1), 400);
  EXPECT_EQ(lots.Stepped(500, 2), 1200);
  EXPECT_EQ(lots.Stepped(500, 0), 500);
  EXPECT_DOUBLE_EQ(ticks.Stepped(60.52, 1), 60.55);
  EXPECT_DOUBLE_EQ(ticks.Stepped(60.52, -1), 60.5);
}

TEST_F(TStepGridTest, GoesOnBelowItsFirstRangeUnlessThereIsALowestPoint) {
  EXPECT_EQ(lots.Stepped(0, -1), -400);
  EXPECT_EQ(lots.Stepped(-500, 1), -400);
  EXPECT_DOUBLE_EQ(ticks.Stepped(0.002, -5), 0.001);
  EXPECT_DOUBLE_EQ(ticks.Stepped(0, -1), 0.001);
}

TEST_F(TStepGridTest, EachStepIsAsWideAsItIsWhereItIsTaken) {
  EXPECT_DOUBLE_EQ(ticks.Stepped(0.249, 1), 0.25);
  EXPECT_DOUBLE_EQ(ticks.Stepped(0.25, 1), 0.255);
  EXPECT_DOUBLE_EQ(ticks.Stepped(0.25, -1), 0.249);
  EXPECT_DOUBLE_EQ(ticks.Stepped(99.95, 2), 100.1);
  EXPECT_DOUBLE_EQ(ticks.Stepped(100.1, -2), 99.95);
  EXPECT_DOUBLE_EQ(ticks.Stepped(19.995, 1), 20);
  EXPECT_DOUBLE_EQ(ticks.Stepped(60.5, -2), 60.4);
}

TEST_F(TStepGridTest, ManyStepsLeadThroughWholeRanges) {
  // 250 ticks to 0.25, 3,950 to 20, 1,600 to 100, one beyond.
  EXPECT_DOUBLE_EQ(ticks.Stepped(0, 5801), 100.1);
  EXPECT_DOUBLE_EQ(ticks.Stepped(100.1, -5800), 0.001);
}

TEST_F(TStepGridTest, WhereARangeDoesNotComeOutEvenTheNextOneBeginsAllTheSame) {
  const TStepGrid uneven({{0, 0.03}, {0.1, 0.05}});
  EXPECT_DOUBLE_EQ(uneven.Stepped(0.09, 1), 0.1);
  EXPECT_DOUBLE_EQ(uneven.Stepped(0.095, 1), 0.1);
  EXPECT_DOUBLE_EQ(uneven.Stepped(0.1, 1), 0.15);
  EXPECT_DOUBLE_EQ(uneven.Stepped(0.1, -1), 0.09);
  EXPECT_DOUBLE_EQ(uneven.Stepped(0.15, -2), 0.09);
}

TEST_F(TStepGridTest, WhatArithmeticAddsDoesNotCountAsBetweenTwoPoints) {
  const TStepGrid tenths({{.from = 0, .width = 0.1}});
  EXPECT_DOUBLE_EQ(tenths.Stepped(0.1 + 0.2, 1), 0.4);
  EXPECT_DOUBLE_EQ(tenths.Stepped(0.1 + 0.2, -1), 0.2);
  EXPECT_DOUBLE_EQ(tenths.Stepped(0.3, 1), 0.4);
  EXPECT_DOUBLE_EQ(tenths.Stepped(0.7, 1), 0.8);
}

TEST_F(TStepGridTest, AnyNumberOfStepsIsTakenAtOnce) {
  EXPECT_DOUBLE_EQ(ticks.Stepped(100, MostSteps), 100 + 0.1 * MostSteps);
  EXPECT_DOUBLE_EQ(ticks.Stepped(100, LeastSteps), 0.001);
  EXPECT_DOUBLE_EQ(lots.Stepped(0, LeastSteps), 400.0 * LeastSteps);
}

}  // namespace
}  // namespace algo::forms::tests
