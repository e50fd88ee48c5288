#include "text/date_text.h"

#include <gtest/gtest.h>

#include <array>

namespace algo::text {
namespace {

using std::chrono::hours;
using std::chrono::local_days;
using std::chrono::minutes;
using std::chrono::seconds;
using std::chrono::year;

TDateTime At(std::int32_t y, std::uint32_t m, std::uint32_t d, std::int32_t h, std::int32_t min,
             std::int32_t s) {
  return local_days(year(y) / std::chrono::month(m) / std::chrono::day(d)) + hours(h) + minutes(min) +
         seconds(s);
}

std::string Compact(TDateTime value) {
  std::array<char, CompactDateTimeLength> out;
  return {out.data(), WriteCompactDateTime(value, out.data())};
}

TEST(DateText, ShowsADateTimeWithItsZeros) {
  EXPECT_EQ(DateTimeText(At(2024, 1, 5, 9, 3, 7)), "2024-01-05 09:03:07");
  EXPECT_EQ(DateTimeText(At(2024, 12, 31, 23, 59, 59)), "2024-12-31 23:59:59");
  EXPECT_EQ(DateTimeText(At(1, 1, 1, 0, 0, 0)), "0001-01-01 00:00:00");
  EXPECT_EQ(DateTimeText(At(1969, 12, 31, 23, 0, 1)), "1969-12-31 23:00:01");
}

TEST(DateText, WritesTheCompactFormOnTheTwentyFourHourClock) {
  EXPECT_EQ(Compact(At(2024, 1, 15, 14, 5, 0)), "20240115-14:05:00");
  EXPECT_EQ(Compact(At(2024, 1, 15, 0, 0, 0)), "20240115-00:00:00");
  EXPECT_EQ(Compact(At(9999, 12, 31, 23, 59, 59)), "99991231-23:59:59");
}

TEST(DateText, ReadsWhatItShows) {
  EXPECT_EQ(ParseDateTime("2024-01-15 09:30:00"), At(2024, 1, 15, 9, 30, 0));
  EXPECT_EQ(ParseDateTime(" 2024-01-15 09:30:00  "), At(2024, 1, 15, 9, 30, 0));
  EXPECT_EQ(ParseCompactDateTime("20240115-09:30:00"), At(2024, 1, 15, 9, 30, 0));
}

TEST(DateText, TakesALoneDateForItsMidnight) {
  EXPECT_EQ(ParseDateTime("2024-01-15"), At(2024, 1, 15, 0, 0, 0));
  EXPECT_EQ(ParseDateTime(" 2024-02-29 "), At(2024, 2, 29, 0, 0, 0));
}

TEST(DateText, TakesWhatStandsBehindACompactTimeForBlanks) {
  for (const std::string_view text :
       {"20240115", "20240115-", "20240115 ", "20240115\t", "20240115 - ", "20240115-00:00:00-"}) {
    EXPECT_EQ(ParseCompactDateTime(text), At(2024, 1, 15, 0, 0, 0)) << text;
  }
  EXPECT_EQ(ParseCompactDateTime("20240115 09:30:00"), At(2024, 1, 15, 9, 30, 0));
}

TEST(DateText, KnowsLeapYears) {
  EXPECT_TRUE(ParseDateTime("2024-02-29").has_value());
  EXPECT_TRUE(ParseDateTime("2000-02-29").has_value());
  EXPECT_FALSE(ParseDateTime("2023-02-29").has_value());
  EXPECT_FALSE(ParseDateTime("1900-02-29").has_value());
}

TEST(DateText, ReadsNothingFromDatesAndTimesThatDoNotExist) {
  for (const std::string_view text :
       {"2024-00-15 09:30:00", "2024-13-15 09:30:00", "2024-01-00 09:30:00", "2024-01-32 09:30:00",
        "2024-04-31 09:30:00", "2024-01-15 24:00:00", "2024-01-15 09:60:00", "2024-01-15 09:30:60",
        "0000-01-01 00:00:00", "0000-01-01"}) {
    EXPECT_EQ(ParseDateTime(text), std::nullopt) << text;
  }
  for (const std::string_view text :
       {"20241315-09:30:00", "20240132-09:30:00", "20230229-09:30:00", "20240115-24:00:00",
        "20240115-09:60:00", "20240115-09:30:60", "00000101-00:00:00"}) {
    EXPECT_EQ(ParseCompactDateTime(text), std::nullopt) << text;
  }
}

TEST(DateText, ReadsNothingFromOtherForms) {
  for (const std::string_view text :
       {"", "2024", "2024-1-15", "2024-01-15 9:30:00", "2024-01-15 09:30", "2024/01/15 09:30:00",
        "2024-01-15T09:30:00", "15-01-2024 09:30:00", "2024-01-15 09:30:00.5", "2024-01-15  09:30:00",
        "20240115-09:30:00", "+024-01-15", "-024-01-15", "2024-01- 5 09:30:00", "noon"}) {
    EXPECT_EQ(ParseDateTime(text), std::nullopt) << text;
  }
  for (const std::string_view text : {"", "20240115-9:30:00", "20240115-09.30.00", "2024-01-15 09:30:00",
                                      " 20240115-09:30:00", "20240115-09:30:0x", "20240115-09:30:000"}) {
    EXPECT_EQ(ParseCompactDateTime(text), std::nullopt) << text;
  }
}

TEST(DateText, CarriesEveryDayOfTheCalendarBothWays) {
  const auto last = local_days(year(9999) / 12 / 31);
  for (auto day = local_days(year(1) / 1 / 1); day <= last; day += std::chrono::days(97)) {
    const TDateTime value = day + hours(13) + minutes(7) + seconds(59);
    ASSERT_EQ(ParseDateTime(DateTimeText(value)), value);
    ASSERT_EQ(ParseCompactDateTime(Compact(value)), value);
  }
}

TEST(DateText, ReadsTheCompactFormWithABlankAndALoneDate) {
  EXPECT_EQ(ParseCompactDateTime("20240115 09:30:00"), At(2024, 1, 15, 9, 30, 0));
  EXPECT_EQ(ParseCompactDateTime("20240115"), At(2024, 1, 15, 0, 0, 0));
  EXPECT_EQ(ParseCompactDateTime("20240115 "), At(2024, 1, 15, 0, 0, 0));
  for (const char* text : {"20240115 09:30", "20240230", "2024011", " 20240115", "20240115T09:30:00"}) {
    EXPECT_EQ(ParseCompactDateTime(text), std::nullopt) << text;
  }
}

TEST(DateText, ReadsATimeOfDay) {
  EXPECT_EQ(ParseTimeOfDay("09:30"), hours(9) + minutes(30));
  EXPECT_EQ(ParseTimeOfDay(" 23:59:59 "), hours(23) + minutes(59) + seconds(59));
  EXPECT_EQ(ParseTimeOfDay("00:00"), seconds(0));
  for (const char* text : {"", "9:30", "24:00", "09:60", "09:30:60", "09:30:0", "0930", "09.30", "-1:30"}) {
    EXPECT_EQ(ParseTimeOfDay(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace algo::text
