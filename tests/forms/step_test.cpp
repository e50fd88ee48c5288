// Arrow keys, wheel and spin buttons, as they come in from whoever draws the form.

#include <gtest/gtest.h>

#include <limits>
#include <optional>

#include "tests/forms/sample_form.h"

namespace algo::forms::tests {
namespace {

struct TStepTest : testing::Test {
  TSampleFrame frame;
  TSpinEdit& spin = frame.Place<TSpinEdit>("spin");
  TTextEdit& line = frame.Place<TTextEdit>("line");

  std::string Stepped(std::int32_t steps) {
    EXPECT_EQ(frame.InputStep(spin, steps), TInputResult::Taken);
    return spin.Text();
  }
  std::optional<double> Left() {
    frame.InputLeave();
    return spin.Value();
  }
};

TEST_F(TStepTest, GoesByTheEditorsOwnStep) {
  spin.SetValue(100);
  EXPECT_EQ(Stepped(1), "101");
  spin.SetStep(0.5);
  EXPECT_EQ(Stepped(1), "101.5");
  EXPECT_EQ(Stepped(-3), "100");
  EXPECT_EQ(Stepped(10), "105");
}

TEST_F(TStepTest, TheValueIsTakenUpWhenTheEditorIsLeft) {
  TNotes notes;
  spin.SetValue(7);
  NoteAll(spin, notes);
  Stepped(1);
  Stepped(1);
  EXPECT_EQ(spin.Value(), 7.0);
  EXPECT_EQ(notes, TNotes{});
  EXPECT_EQ(Left(), 9.0);
  EXPECT_EQ(notes, (TNotes{"spin changed", "spin left"}));
}

TEST_F(TStepTest, GivesTheEditorTheFocusAndSelectsTheNumber) {
  frame.InputClick(line);
  spin.SetValue(7);
  Stepped(1);
  EXPECT_TRUE(spin.Focused());
  EXPECT_EQ(spin.SelectedText(), "8");
}

TEST_F(TStepTest, StartsFromZeroWhereThereIsNothing) {
  EXPECT_EQ(Stepped(1), "1");
  spin.SetValue(std::nullopt);
  EXPECT_EQ(Stepped(-2), "-2");
}

TEST_F(TStepTest, StartsFromWhatIsTyped) {
  spin.SetValue(7);
  frame.InputText(spin, "1,200.5");
  EXPECT_EQ(Stepped(1), "1201.5");
}

TEST_F(TStepTest, ATextThatWasEmptiedMeansNothing) {
  spin.SetValue(7);
  frame.InputText(spin, "");
  EXPECT_EQ(Stepped(1), "1");
}

TEST_F(TStepTest, ATypedTextThatIsNoNumberMeansTheFormerValue) {
  spin.SetValue(7);
  frame.InputText(spin, "-");
  EXPECT_EQ(Stepped(1), "8");
}

TEST_F(TStepTest, NoStepsChangeNothing) {
  spin.SetValue(7);
  EXPECT_EQ(Stepped(0), "7");
  EXPECT_EQ(spin.SelectedText(), "");
}

TEST_F(TStepTest, StopsAtTheBounds) {
  spin.SetMin(0);
  spin.SetMax(7);
  spin.SetStep(5);
  EXPECT_EQ(Stepped(1), "5");
  EXPECT_EQ(Stepped(1), "7");
  EXPECT_EQ(Stepped(1), "7");
  EXPECT_EQ(Stepped(-10), "0");
  EXPECT_EQ(Stepped(-1), "0");
}

TEST_F(TStepTest, FromOutsideAnyStepGoesToTheNearerBound) {
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

TEST_F(TStepTest, AnExitRuleSeesTheNumberWhenTheEditorIsLeft) {
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

TEST_F(TStepTest, NumbersReadAsPeopleWriteThem) {
  spin.SetStep(0.01);
  spin.SetValue(0.1);
  for (int step = 0; step < 19; ++step) Stepped(1);
  EXPECT_EQ(spin.Text(), "0.29");
  EXPECT_EQ(Stepped(1), "0.3");
  EXPECT_EQ(Left(), 0.3);
  spin.SetStep(0.1);
  EXPECT_EQ(Stepped(-1), "0.2");
}

TEST_F(TStepTest, NumbersAreGroupedWhereTheEditorGroupsThem) {
  spin.SetValue(999);
  EXPECT_EQ(Stepped(1), "1000");
  spin.SetFormat({.grouped = true});
  EXPECT_EQ(Stepped(1), "1,001");
  EXPECT_EQ(Left(), 1001.0);
}

TEST_F(TStepTest, GoesAlongTheGridOfTheHost) {
  spin.SetStep(3);
  spin.SetStepGrid(TStepGrid({{0, 0.01}, {0.5, 0.05}}, 0.01));
  spin.SetValue(0.49);
  EXPECT_EQ(Stepped(1), "0.5");
  EXPECT_EQ(Stepped(1), "0.55");
  EXPECT_EQ(Stepped(-3), "0.48");
  frame.InputText(spin, "0.512");
  EXPECT_EQ(Stepped(1), "0.55");
  EXPECT_EQ(Stepped(-100), "0.01");
  spin.SetStepGrid({});
  EXPECT_EQ(Stepped(1), "3.01");
}

TEST_F(TStepTest, TheBoundsHoldOnAGridTooWhetherTheyAreOnItOrNot) {
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

TEST_F(TStepTest, AnyNumberOfStepsIsTakenAtOnce) {
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

TEST_F(TStepTest, ThereIsNoNumberBeyondTheLargest) {
  constexpr double Huge = std::numeric_limits<double>::max();
  spin.SetValue(Huge);
  spin.SetStep(Huge);
  Stepped(1);
  EXPECT_EQ(Left(), Huge);
  spin.SetMax(100);
  spin.SetValue(0);
  EXPECT_EQ(Stepped(MostSteps), "100");
}

TEST_F(TStepTest, ALongNumberKeepsItsSize) {
  spin.SetValue(1e15);
  EXPECT_EQ(Stepped(1), "1000000000000001");
}

TEST_F(TStepTest, OnlyAnEditorThatMayBeChangedIsStepped) {
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

TEST_F(TStepTest, LeavingTheFormerControlMayLockTheEditor) {
  spin.SetValue(7);
  frame.InputClick(line);
  line.OnExit = [this] { spin.SetReadOnly(true); };
  EXPECT_EQ(frame.InputStep(spin, 1), TInputResult::ReadOnly);
  EXPECT_EQ(spin.Text(), "7");
}

TEST_F(TStepTest, AValueThatTheProgramAssignsReplacesTheSteps) {
  spin.SetValue(7);
  Stepped(1);
  spin.SetValue(20);
  EXPECT_EQ(Stepped(1), "21");
  EXPECT_EQ(Left(), 21.0);
}

}  // namespace
}  // namespace algo::forms::tests
