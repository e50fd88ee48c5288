#include "model/values.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

namespace algo::model {
namespace {

static_assert(std::is_trivially_copyable_v<TParamValues>);

TEST(ParamValues, HoldNothingAtFirst) {
  const TParamValues values;
  for (const TParamRow& row : ParamRows()) {
    EXPECT_EQ(values.Number(row.param), std::nullopt) << row.key;
    EXPECT_EQ(values.Time(row.param), std::nullopt) << row.key;
    EXPECT_EQ(values.Choice(row.param), -1) << row.key;
  }
}

TEST(ParamValues, KeepEachParameterApart) {
  TParamValues values;
  double next = 1;
  for (const TParamRow& row : ParamRows()) values.SetNumber(row.param, next++);
  next = 1;
  for (const TParamRow& row : ParamRows()) EXPECT_EQ(values.Number(row.param), next++) << row.key;
}

TEST(ParamValues, TakeANumberThatIsNotFiniteForNothing) {
  using TLimits = std::numeric_limits<double>;
  for (const double value : {TLimits::infinity(), -TLimits::infinity(), TLimits::quiet_NaN()}) {
    TParamValues values;
    values.SetNumber(TParam::WPx, 1);
    values.SetNumber(TParam::WPx, value);
    EXPECT_EQ(values.Number(TParam::WPx), std::nullopt);
  }
}

TEST(ParamValues, AreEqualWhenEveryValueIs) {
  TParamValues left;
  TParamValues right;
  EXPECT_EQ(left, right);
  left.SetNumber(TParam::WPx, 0);
  EXPECT_NE(left, right);
  right.SetNumber(TParam::WPx, 0);
  EXPECT_EQ(left, right);
  right.SetChoice(TParam::Style, 2);
  EXPECT_NE(left, right);
  left.SetChoice(TParam::Style, 2);
  left.SetTime(TParam::STime, text::TDateTime());
  EXPECT_NE(left, right);
}

}  // namespace
}  // namespace algo::model
