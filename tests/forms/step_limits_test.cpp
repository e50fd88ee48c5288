// Where steps end: at bounds, at the end of all numbers, and in editors that may not be changed.

#include <limits>

#include "tests/forms/stepped_form.h"

namespace algo::forms::tests {
namespace {

using TStepLimits = TStepTest;

TEST_F(TStepLimits, StopsAtTheBounds) {
  spin.SetMin(0);
  spin.SetMax(7);
  spin.SetStep(5);
  EXPECT_EQ(Stepped(1), "5");
  EXPECT_EQ(Stepped(1), "7");
  EXPECT_EQ(Stepped(1), "7");
  EXPECT_EQ(Stepped(-10), "0");
  EXPECT_EQ(Stepped(-1), "0");
}

TEST_F(TStepLimits, FromOutsideAnyStepGoesToTheNearerBound) {
  spin.SetMin(10);
  spin.SetMax(20);
  for (const std::int32_t steps : {1, -1, 5, -5, 100, -100}) {
    spin.SetValue(250);
    EXPECT_EQ(Stepped(steps), "20") << steps;
    spin.SetValue(-3);
    EXPECT_EQ(Stepped(steps), "10") << steps;
    frame.InputText(spin, "21");
    EXPECT_EQ(Stepped(steps), "20") << steps;
    spin.SetValue(std::nullopt);
    EXPECT_EQ(Stepped(steps), "10") << steps;
  }
}

TEST_F(TStepLimits, TheBoundsHoldOnAGridTooWhetherTheyAreOnItOrNot) {
  spin.SetStepGrid(TStepGrid({{.from = 0, .width = 400}}));
  spin.SetMin(0);
  spin.SetMax(1000);
  spin.SetValue(800);
  EXPECT_EQ(Stepped(1), "1000");
  EXPECT_EQ(Stepped(-1), "800");
  EXPECT_EQ(Stepped(-3), "0");
  spin.SetValue(1300);
  EXPECT_EQ(Stepped(-1), "1000");
}

TEST_F(TStepLimits, AnExitRuleSeesTheNumberWhenTheEditorIsLeft) {
  spin.SetMin(0);
  spin.SetMax(80);
  spin.OnExit = [this] {
    if (spin.Value() == 80.0) spin.SetValue(std::nullopt);
  };
  spin.SetValue(79);
  EXPECT_EQ(Stepped(1), "80");
  EXPECT_EQ(Stepped(1), "80");
  EXPECT_EQ(Left(), std::nullopt);
  spin.SetValue(79);
  Stepped(-1);
  EXPECT_EQ(Left(), 78.0);
}

TEST_F(TStepLimits, AnyNumberOfStepsIsTakenAtOnce) {
  spin.SetValue(1);
  EXPECT_EQ(Stepped(MostSteps), "2147483648");
  EXPECT_EQ(Stepped(LeastSteps), "0");
  spin.SetStepGrid(TStepGrid({{0, 0.5}, {10, 1}}));
  EXPECT_EQ(Stepped(MostSteps), "2147483637");
  spin.SetMax(50);
  spin.SetMin(-50);
  spin.SetValue(0);
  EXPECT_EQ(Stepped(MostSteps), "50");
  EXPECT_EQ(Stepped(LeastSteps), "-50");
}

TEST_F(TStepLimits, ThereIsNoNumberBeyondTheLargest) {
  constexpr double Huge = std::numeric_limits<double>::max();
  spin.SetValue(Huge);
  spin.SetStep(Huge);
  Stepped(1);
  EXPECT_EQ(Left(), Huge);
  spin.SetMax(100);
  spin.SetValue(0);
  EXPECT_EQ(Stepped(MostSteps), "100");
}

TEST_F(TStepLimits, ALongNumberKeepsItsSize) {
  spin.SetValue(1e15);
  EXPECT_EQ(Stepped(1), "1000000000000001");
}

TEST_F(TStepLimits, OnlyAnEditorThatMayBeChangedIsStepped) {
  spin.SetValue(7);
  spin.SetReadOnly(true);
  EXPECT_EQ(frame.InputStep(spin, 1), TInputResult::ReadOnly);
  spin.SetReadOnly(false);
  spin.SetEnabled(false);
  EXPECT_EQ(frame.InputStep(spin, 1), TInputResult::Disabled);
  spin.SetVisible(false);
  EXPECT_EQ(frame.InputStep(spin, 1), TInputResult::Hidden);
  EXPECT_EQ(frame.InputStep(line, 1), TInputResult::Unsuited);
  EXPECT_EQ(spin.Text(), "7");
  EXPECT_EQ(frame.Focused(), nullptr);
}

TEST_F(TStepLimits, LeavingTheFormerControlMayLockTheEditor) {
  spin.SetValue(7);
  frame.InputClick(line);
  line.OnExit = [this] { spin.SetReadOnly(true); };
  EXPECT_EQ(frame.InputStep(spin, 1), TInputResult::ReadOnly);
  EXPECT_EQ(spin.Text(), "7");
}

}  // namespace
}  // namespace algo::forms::tests
