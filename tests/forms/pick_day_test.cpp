// A day picked from a calendar.

#include <gtest/gtest.h>

#include <chrono>

#include "tests/forms/sample_form.h"

namespace algo::forms::tests {
namespace {

using std::chrono::local_days;
using namespace std::chrono_literals;

struct TPickDayTest : testing::Test {
  static constexpr local_days Monday{2026y / 11 / 23};

  TSampleFrame frame;
  TDateEdit& date = frame.Place<TDateEdit>("date");
  TTextEdit& line = frame.Place<TTextEdit>("line");

  std::string Picked(local_days day = Monday) {
    EXPECT_EQ(frame.InputPickDay(date, day), TInputResult::Taken);
    return date.Text();
  }
};

TEST_F(TPickDayTest, MeansMidnight) {
  EXPECT_EQ(Picked(), "2026-11-23 00:00:00");
  date.SetText("2026-11-20 09:30:15");
  EXPECT_EQ(Picked(), "2026-11-23 00:00:00");
}

TEST_F(TPickDayTest, KeepsTheTimeOfDayWhereTheEditorSaysSo) {
  date.SetPickKeepsTime(true);
  EXPECT_EQ(Picked(), "2026-11-23 00:00:00");
  date.SetText("2026-11-20 09:30:15");
  EXPECT_EQ(Picked(), "2026-11-23 09:30:15");
}

TEST_F(TPickDayTest, KeepsATimeThatIsTypedAndNotYetTakenUp) {
  date.SetPickKeepsTime(true);
  date.SetText("2026-11-20 09:30:15");
  frame.InputText(date, "2026-11-20 16:00:00");
  EXPECT_EQ(Picked(), "2026-11-23 16:00:00");
}

TEST_F(TPickDayTest, KeepsTheTimeThatWasThereWhereWhatIsTypedIsNone) {
  date.SetPickKeepsTime(true);
  date.SetText("2026-11-20 09:30:15");
  frame.InputText(date, "2026-11-20 16:0");
  EXPECT_EQ(Picked(), "2026-11-23 09:30:15");
  frame.InputText(date, "");
  EXPECT_EQ(Picked(), "2026-11-23 00:00:00");
}

TEST_F(TPickDayTest, IsTakenUpWhenTheEditorIsLeft) {
  TNotes notes;
  NoteAll(date, notes);
  Picked();
  EXPECT_TRUE(date.Focused());
  EXPECT_EQ(date.Value(), std::nullopt);
  EXPECT_EQ(notes, TNotes{});
  frame.InputLeave();
  EXPECT_EQ(date.Value(), Monday);
  EXPECT_EQ(notes, (TNotes{"date changed", "date left"}));
}

TEST_F(TPickDayTest, IsADayThatHasAText) {
  EXPECT_EQ(Picked(local_days{1y / 1 / 1}), "0001-01-01 00:00:00");
  EXPECT_EQ(Picked(local_days{9999y / 12 / 31}), "9999-12-31 00:00:00");
  EXPECT_EQ(frame.InputPickDay(date, local_days{0y / 12 / 31}), TInputResult::OutOfRange);
  EXPECT_EQ(frame.InputPickDay(date, local_days{10000y / 1 / 1}), TInputResult::OutOfRange);
  EXPECT_EQ(date.Text(), "9999-12-31 00:00:00");
}

TEST_F(TPickDayTest, NeedsADateEditThatMayBeChanged) {
  date.SetReadOnly(true);
  EXPECT_EQ(frame.InputPickDay(date, Monday), TInputResult::ReadOnly);
  date.SetReadOnly(false);
  date.SetEnabled(false);
  EXPECT_EQ(frame.InputPickDay(date, Monday), TInputResult::Disabled);
  date.SetVisible(false);
  EXPECT_EQ(frame.InputPickDay(date, Monday), TInputResult::Hidden);
  EXPECT_EQ(frame.InputPickDay(line, Monday), TInputResult::Unsuited);
  EXPECT_EQ(date.Text(), "");
}

}  // namespace
}  // namespace algo::forms::tests
