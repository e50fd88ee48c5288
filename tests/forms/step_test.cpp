// Arrow keys, wheel and spin buttons, as they come in from whoever draws the form.

#include "tests/forms/stepped_form.h"

namespace algo::forms::tests {
namespace {

using TSteps = TStepTest;

TEST_F(TSteps, GoesByTheEditorsOwnStep) {
  spin.SetValue(100);
  EXPECT_EQ(Stepped(1), "101");
  spin.SetStep(0.5);
  EXPECT_EQ(Stepped(1), "101.5");
  EXPECT_EQ(Stepped(-3), "100");
  EXPECT_EQ(Stepped(10), "105");
}

TEST_F(TSteps, TheValueIsTakenUpWhenTheEditorIsLeft) {
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

TEST_F(TSteps, GivesTheEditorTheFocusAndSelectsTheNumber) {
  frame.InputClick(line);
  spin.SetValue(7);
  Stepped(1);
  EXPECT_TRUE(spin.Focused());
  EXPECT_EQ(spin.SelectedText(), "8");
}

TEST_F(TSteps, StartsFromZeroWhereThereIsNothing) {
  EXPECT_EQ(Stepped(1), "1");
  spin.SetValue(std::nullopt);
  EXPECT_EQ(Stepped(-2), "-2");
}

TEST_F(TSteps, StartsFromWhatIsTyped) {
  spin.SetValue(7);
  frame.InputText(spin, "1,200.5");
  EXPECT_EQ(Stepped(1), "1201.5");
}

TEST_F(TSteps, ATextThatWasEmptiedMeansNothing) {
  spin.SetValue(7);
  frame.InputText(spin, "");
  EXPECT_EQ(Stepped(1), "1");
}

TEST_F(TSteps, ATypedTextThatIsNoNumberMeansTheFormerValue) {
  spin.SetValue(7);
  frame.InputText(spin, "-");
  EXPECT_EQ(Stepped(1), "8");
}

TEST_F(TSteps, NoStepsChangeNothing) {
  spin.SetValue(7);
  EXPECT_EQ(Stepped(0), "7");
  EXPECT_EQ(spin.SelectedText(), "");
}

TEST_F(TSteps, NumbersReadAsPeopleWriteThem) {
  spin.SetStep(0.01);
  spin.SetValue(0.1);
  for (int step = 0; step < 19; ++step) Stepped(1);
  EXPECT_EQ(spin.Text(), "0.29");
  EXPECT_EQ(Stepped(1), "0.3");
  EXPECT_EQ(Left(), 0.3);
  spin.SetStep(0.1);
  EXPECT_EQ(Stepped(-1), "0.2");
}

TEST_F(TSteps, NumbersAreGroupedWhereTheEditorGroupsThem) {
  spin.SetValue(999);
  EXPECT_EQ(Stepped(1), "1000");
  spin.SetFormat({.grouped = true});
  EXPECT_EQ(Stepped(1), "1,001");
  EXPECT_EQ(Left(), 1001.0);
}

TEST_F(TSteps, GoesAlongTheGridOfTheHost) {
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

TEST_F(TSteps, AValueThatTheProgramAssignsReplacesTheSteps) {
  spin.SetValue(7);
  Stepped(1);
  spin.SetValue(20);
  EXPECT_EQ(Stepped(1), "21");
  EXPECT_EQ(Left(), 21.0);
}

}  // namespace
}  // namespace algo::forms::tests
