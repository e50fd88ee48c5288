#include "text/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace algo::text {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

TEST(NumberText, ShowsANumberInItsShortestPlainForm) {
  EXPECT_EQ(PlainNumber(0), "0");
  EXPECT_EQ(PlainNumber(20), "20");
  EXPECT_EQ(PlainNumber(12.50), "12.5");
  EXPECT_EQ(PlainNumber(0.1), "0.1");
  EXPECT_EQ(PlainNumber(-5), "-5");
  EXPECT_EQ(PlainNumber(-0.25), "-0.25");
  EXPECT_EQ(PlainNumber(1234567.891), "1234567.891");
  EXPECT_EQ(PlainNumber(1.0 / 3), "0.3333333333333333");
}

TEST(NumberText, NeverWritesAnExponent) {
  EXPECT_EQ(PlainNumber(1e15), "1000000000000000");
  EXPECT_EQ(PlainNumber(1e22), "10000000000000000000000");
  EXPECT_EQ(PlainNumber(1e-7), "0.0000001");
  EXPECT_EQ(PlainNumber(2.5e-10), "0.00000000025");
}

TEST(NumberText, NeverWritesANegativeZero) {
  EXPECT_EQ(PlainNumber(-0.0), "0");
  EXPECT_EQ(GroupedNumber(-0.0, 7), "0");
  EXPECT_EQ(GroupedNumber(-0.00000001, 7), "0");
}

TEST(NumberText, ShowsNothingForANumberThatIsNotFinite) {
  for (const double value : {Infinity, -Infinity, NaN}) {
    EXPECT_EQ(PlainNumber(value), "");
    EXPECT_EQ(GroupedNumber(value, 7), "");
    EXPECT_EQ(GroupedNumber(value, -1), "");
  }
}

TEST(NumberText, HasRoomForTheLongestNumbers) {
  using TLimits = std::numeric_limits<double>;
  for (const double value : {TLimits::max(), TLimits::lowest(), TLimits::min(), TLimits::denorm_min(),
                             -TLimits::denorm_min(), -2.2250738585072011e-308}) {
    const std::string text = PlainNumber(value);
    EXPECT_LE(text.size(), PlainNumberCapacity);
    EXPECT_EQ(text.find_first_of("eE"), std::string::npos);
    EXPECT_EQ(ParseNumber(text), value);
  }
}

TEST(NumberText, ReadsBackWhateverNumberItWrote) {
  std::mt19937_64 random(20240115);
  for (std::int32_t i = 0; i < 20000; ++i) {
    const auto value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    const auto back = ParseNumber(PlainNumber(value));
    ASSERT_TRUE(back.has_value());
    ASSERT_EQ(*back, value);
  }
}

TEST(NumberText, GroupsThousandsAndKeepsAtMostTheDecimalsAskedFor) {
  EXPECT_EQ(GroupedNumber(0, 7), "0");
  EXPECT_EQ(GroupedNumber(999, 7), "999");
  EXPECT_EQ(GroupedNumber(1000, 7), "1,000");
  EXPECT_EQ(GroupedNumber(-1000, 7), "-1,000");
  EXPECT_EQ(GroupedNumber(-999, 7), "-999");
  EXPECT_EQ(GroupedNumber(1234567, 7), "1,234,567");
  EXPECT_EQ(GroupedNumber(50000.5, 7), "50,000.5");
  EXPECT_EQ(GroupedNumber(0.123456789, 7), "0.1234568");
  EXPECT_EQ(GroupedNumber(1234.00000001, 7), "1,234");
  EXPECT_EQ(GroupedNumber(999.99, 1), "1,000");
  EXPECT_EQ(GroupedNumber(1234.5678, 0), "1,235");
  EXPECT_EQ(GroupedNumber(1200, 0), "1,200");
}

TEST(NumberText, KeepsAllDecimalsWhenNoMaximumIsGiven) {
  EXPECT_EQ(GroupedNumber(1234.123456789, -1), "1,234.123456789");
  EXPECT_EQ(GroupedNumber(-12345.5, -1), "-12,345.5");
}

TEST(NumberText, ReadsNumbersInEveryAcceptedForm) {
  EXPECT_EQ(ParseNumber("12.5"), 12.5);
  EXPECT_EQ(ParseNumber("  12.5\t"), 12.5);
  EXPECT_EQ(ParseNumber("+3"), 3.0);
  EXPECT_EQ(ParseNumber("-3"), -3.0);
  EXPECT_EQ(ParseNumber(".5"), 0.5);
  EXPECT_EQ(ParseNumber("-.5"), -0.5);
  EXPECT_EQ(ParseNumber("3."), 3.0);
  EXPECT_EQ(ParseNumber("007"), 7.0);
  EXPECT_EQ(ParseNumber("1e3"), 1000.0);
  EXPECT_EQ(ParseNumber("1.5E-2"), 0.015);
  EXPECT_EQ(ParseNumber("2e+2"), 200.0);
}

TEST(NumberText, ReadsNothingFromTextsThatAreNoFiniteNumber) {
  for (const std::string_view text :
       {"",      " ",      "+",   "-",     ".",      "-.",     "+-5",  "-+5",  "--5", "++5",  "1,000",
        "1 000", "12.5.1", "12x", "x12",   "0x10",   "inf",    "-inf", "+inf", "nan", "-nan", "infinity",
        "1e",    "1e+",    "e5",  "1e400", "-1e400", "1e-400", "1,5",  "1;",   "+ 5"}) {
    EXPECT_EQ(ParseNumber(text), std::nullopt) << text;
  }
}

TEST(NumberText, FallsBackWhereATextIsNoNumber) {
  EXPECT_EQ(NumberOr("2.5", 1), 2.5);
  EXPECT_EQ(NumberOr("abc", 1), 1);
  EXPECT_EQ(NumberOr("", 0), 0);
}

TEST(NumberText, ReadsWholeNumbersThatFit) {
  EXPECT_EQ(ParseWhole("42"), 42);
  EXPECT_EQ(ParseWhole(" -42 "), -42);
  EXPECT_EQ(ParseWhole("+7"), 7);
  EXPECT_EQ(ParseWhole("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(ParseWhole("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
  for (const std::string_view text :
       {"", "+", "-", "1.0", "1e3", "9223372036854775808", "1 2", "x", "+-1", "0x1"}) {
    EXPECT_EQ(ParseWhole(text), std::nullopt) << text;
  }
}

TEST(NumberText, TruncatesTowardsZero) {
  EXPECT_EQ(TruncateToWhole(2.9), 2);
  EXPECT_EQ(TruncateToWhole(-2.9), -2);
  EXPECT_EQ(TruncateToWhole(0.99), 0);
  EXPECT_EQ(TruncateToWhole(-9223372036854775808.0), std::numeric_limits<std::int64_t>::min());
}

TEST(NumberText, TruncatesToZeroWhatDoesNotFit) {
  for (const double value : {9223372036854775808.0, -1e19, 1e300, Infinity, -Infinity, NaN}) {
    EXPECT_EQ(TruncateToWhole(value), 0);
  }
}

TEST(NumberText, RoundsToSignificantDigits) {
  EXPECT_EQ(RoundToDigits(7.85 * 0.001 / 0.001, 15), 7.85);
  EXPECT_EQ(RoundToDigits(0.1 + 0.2, 15), 0.3);
  EXPECT_EQ(RoundToDigits(7849.999999999999, 15), 7850);
  EXPECT_EQ(RoundToDigits(-1234.5, 3), -1230);
  EXPECT_EQ(RoundToDigits(0, 15), 0);
  EXPECT_EQ(RoundToDigits(1.7976931348623157e308, 15), 1.7976931348623157e308) << "nothing lies beyond it";
  EXPECT_TRUE(std::isnan(RoundToDigits(std::nan(""), 15)));
}

}  // namespace
}  // namespace algo::text
