#include "terminal/paper/order_window.h"

#include <gtest/gtest.h>

#include "tests/terminal/paper/sample_market.h"

namespace algo::terminal::paper {
namespace {

using tests::At;

std::string Shown(const TWindow& window) {
  const auto text = [](TMoment moment) {
    return text::DateTimeText(std::chrono::floor<std::chrono::seconds>(moment));
  };
  return text(window.begin) + " to " + text(window.end);
}

std::string WindowFor(TPhase phase, const char* seen, const TAlgoPlan& plan = {}) {
  return Shown(WindowOf(phase, tests::SampleTables().exchanges[0], plan, TMoment(At(seen))));
}

TAlgoPlan Between(std::string_view start, std::string_view end) {
  TAlgoPlan plan;
  if (!start.empty()) plan.start = At(start);
  if (!end.empty()) plan.end = At(end);
  return plan;
}

TEST(OrderWindow, ADaysOrderGoesOnUntilTheNextClose) {
  EXPECT_EQ(WindowFor(TPhase::Day, "10:00:00"), "2026-11-20 10:00:00 to 2026-11-20 16:00:00");
  EXPECT_EQ(WindowFor(TPhase::Day, "16:00:00"), "2026-11-20 16:00:00 to 2026-11-21 16:00:00");
}

TEST(OrderWindow, StartAndEndTimesHoldWhereTheyAreGiven) {
  EXPECT_EQ(WindowFor(TPhase::Day, "10:00:00", Between("11:00:00", "12:00:00")),
            "2026-11-20 11:00:00 to 2026-11-20 12:00:00");
  EXPECT_EQ(WindowFor(TPhase::Day, "11:30:00", Between("11:00:00", "12:00:00")),
            "2026-11-20 11:30:00 to 2026-11-20 12:00:00");
  EXPECT_EQ(WindowFor(TPhase::Day, "10:00:00", Between("", "17:00:00")),
            "2026-11-20 10:00:00 to 2026-11-20 17:00:00");
}

TEST(OrderWindow, TheClosingPhaseIsTheLastFiveMinutes) {
  EXPECT_EQ(WindowFor(TPhase::Closing, "10:00:00"), "2026-11-20 15:55:00 to 2026-11-20 16:00:00");
  EXPECT_EQ(WindowFor(TPhase::Closing, "15:58:00"), "2026-11-20 15:58:00 to 2026-11-20 16:00:00");
  EXPECT_EQ(WindowFor(TPhase::Closing, "16:00:01"), "2026-11-21 15:55:00 to 2026-11-21 16:00:00");
  EXPECT_EQ(WindowFor(TPhase::Closing, "10:00:00", Between("", "15:57:00")),
            "2026-11-20 15:55:00 to 2026-11-20 15:57:00");
}

TEST(OrderWindow, TheOpeningPhaseIsTheFirstFiveMinutes) {
  EXPECT_EQ(WindowFor(TPhase::Opening, "09:00:00"), "2026-11-20 09:30:00 to 2026-11-20 09:35:00");
  EXPECT_EQ(WindowFor(TPhase::Opening, "09:33:00"), "2026-11-20 09:33:00 to 2026-11-20 09:35:00");
  EXPECT_EQ(WindowFor(TPhase::Opening, "09:35:00"), "2026-11-21 09:30:00 to 2026-11-21 09:35:00");
}

TEST(OrderWindow, HowMuchHasPassedIsBetweenNothingAndAll) {
  const TWindow window{TMoment(At("10:00:00")), TMoment(At("11:00:00"))};
  EXPECT_EQ(window.Passed(TMoment(At("09:00:00"))), 0);
  EXPECT_EQ(window.Passed(TMoment(At("10:15:00"))), 0.25);
  EXPECT_EQ(window.Passed(TMoment(At("11:00:00"))), 1);
  EXPECT_EQ(window.Passed(TMoment(At("12:00:00"))), 1);
  const TWindow empty{TMoment(At("11:00:00")), TMoment(At("10:00:00"))};
  EXPECT_EQ(empty.Passed(TMoment(At("09:00:00"))), 0);
  EXPECT_EQ(empty.Passed(TMoment(At("12:00:00"))), 1);
}

}  // namespace
}  // namespace algo::terminal::paper
