#include <gtest/gtest.h>

#include <limits>
#include <optional>

#include "tests/forms/sample_form.h"

namespace algo::forms::tests {
namespace {

struct TSpinEditTest : testing::Test {
  TSampleFrame frame;
  TSpinEdit& spin = frame.Place<TSpinEdit>("spin");
  TSpinEdit& other = frame.Place<TSpinEdit>("other");

  std::string Typed(const std::string& text) {
    frame.InputText(spin, text);
    return spin.Text();
  }
  std::optional<double> Left(const std::string& text) {
    TypeAndLeave(spin, text);
    return spin.Value();
  }
};

TEST_F(TSpinEditTest, HoldsNothingAtFirst) {
  EXPECT_EQ(spin.Value(), std::nullopt);
  EXPECT_EQ(spin.Text(), "");
}

TEST_F(TSpinEditTest, TakesUpWhatWasTypedWhenItIsLeft) {
  spin.SetValue(7);
  frame.InputText(spin, "12.5");
  EXPECT_EQ(spin.Text(), "12.5");
  EXPECT_EQ(spin.Value(), 7.0);
  frame.InputLeave();
  EXPECT_EQ(spin.Value(), 12.5);
}

TEST_F(TSpinEditTest, IsLeftWhenAnotherControlGetsTheFocus) {
  frame.InputText(spin, "3");
  frame.InputClick(other);
  EXPECT_EQ(spin.Value(), 3.0);
  EXPECT_EQ(frame.Focused(), &other);
}

TEST_F(TSpinEditTest, AnEmptyTextGivesNothing) {
  spin.SetValue(7);
  EXPECT_EQ(Left(""), std::nullopt);
}

TEST_F(TSpinEditTest, TakesNumbersThatBeginOrEndWithThePoint) {
  EXPECT_EQ(Left(".5"), 0.5);
  EXPECT_EQ(Left("3."), 3.0);
}

TEST_F(TSpinEditTest, ATextThatIsNoNumberGivesTheFormerValueBack) {
  spin.SetValue(7);
  EXPECT_EQ(Left("."), 7.0);
  EXPECT_EQ(spin.Text(), "7");
  EXPECT_EQ(Left("-"), 7.0);
  EXPECT_EQ(Left(std::string(400, '9')), 7.0);
}

TEST_F(TSpinEditTest, ValuesOutOfBoundsGoToTheNearerOne) {
  spin.SetMin(1);
  spin.SetMax(100);
  EXPECT_EQ(Left("0"), 1.0);
  EXPECT_EQ(Left("1"), 1.0);
  EXPECT_EQ(Left("99.5"), 99.5);
  EXPECT_EQ(Left("100"), 100.0);
  EXPECT_EQ(Left("101"), 100.0);
}

TEST_F(TSpinEditTest, AnEmptyTextIsNotBentToTheBounds) {
  spin.SetMin(1);
  EXPECT_EQ(Left(""), std::nullopt);
}

TEST_F(TSpinEditTest, GoesByTheBoundsOfTheMomentOfLeaving) {
  spin.SetMax(100);
  frame.InputText(spin, "80");
  spin.SetMax(50);
  frame.InputLeave();
  EXPECT_EQ(spin.Value(), 50.0);
}

TEST_F(TSpinEditTest, AValueThatTheProgramAssignedIsNotBent) {
  spin.SetMax(100);
  spin.SetValue(250);
  frame.InputClick(spin);
  frame.InputLeave();
  EXPECT_EQ(spin.Value(), 250.0);
  spin.Commit();
  EXPECT_EQ(spin.Value(), 250.0);
}

TEST_F(TSpinEditTest, TypingTheSameValueAgainBendsIt) {
  spin.SetMax(100);
  spin.SetValue(250);
  EXPECT_EQ(Left("250"), 100.0);
}

TEST_F(TSpinEditTest, CommasAreAcceptedBetweenGroups) {
  EXPECT_EQ(Typed("1,234.5"), "1,234.5");
  frame.InputLeave();
  EXPECT_EQ(spin.Value(), 1234.5);
  EXPECT_EQ(Left("1,23,4.5"), 1234.5) << "no number, so the former value";
}

TEST_F(TSpinEditTest, PassesOverCharactersThatAreNoPartOfANumber) { EXPECT_EQ(Typed("a1 e2+3%"), "123"); }

TEST_F(TSpinEditTest, ATextWithoutAnyGoodCharacterLeavesWhatWasThere) {
  spin.SetValue(7);
  EXPECT_EQ(Left("abc"), 7.0);
}

TEST_F(TSpinEditTest, TakesOnePoint) { EXPECT_EQ(Typed("1.2.3"), "1.23"); }

TEST_F(TSpinEditTest, AWholeNumberTakesNoPoint) {
  spin.SetFormat({.whole = true, .grouped = false, .decimals = -1});
  EXPECT_EQ(Typed("1.5"), "15");
}

TEST_F(TSpinEditTest, TakesAMinusInFrontWhereThereIsNoMinimum) {
  EXPECT_EQ(Left("-5"), -5.0);
  EXPECT_EQ(Typed("5-3"), "53");
}

TEST_F(TSpinEditTest, TakesAMinusWhereTheMinimumIsBelowZero) {
  spin.SetMin(-0.5);
  EXPECT_EQ(Typed("-0.25"), "-0.25");
}

TEST_F(TSpinEditTest, TakesNoMinusWhereTheMinimumIsZero) {
  spin.SetMin(0);
  EXPECT_EQ(Typed("-5"), "5");
}

TEST_F(TSpinEditTest, ShowsTheValueInItsFormat) {
  spin.SetValue(1234567.26);
  EXPECT_EQ(spin.Text(), "1234567.26");
  spin.SetFormat({.whole = false, .grouped = true, .decimals = -1});
  EXPECT_EQ(spin.Text(), "1,234,567.26");
  spin.SetFormat({.whole = false, .grouped = true, .decimals = 1});
  EXPECT_EQ(spin.Text(), "1,234,567.3");
}

TEST_F(TSpinEditTest, NeverShowsAMinusZero) {
  EXPECT_EQ(Left("-0"), 0.0);
  EXPECT_EQ(spin.Text(), "0");
}

TEST_F(TSpinEditTest, NumbersThatAreNotFiniteCountAsNothing) {
  spin.SetValue(7);
  spin.SetValue(std::numeric_limits<double>::infinity());
  EXPECT_EQ(spin.Value(), std::nullopt);
  spin.SetValue(7);
  spin.SetValue(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(spin.Value(), std::nullopt);
}

TEST_F(TSpinEditTest, EmptyingTheTextEmptiesTheValue) {
  spin.SetValue(7);
  spin.SetText("");
  EXPECT_EQ(spin.Value(), std::nullopt);
}

TEST_F(TSpinEditTest, AssigningATextThatIsNoNumberChangesNothing) {
  spin.SetText("1,250");
  EXPECT_EQ(spin.Value(), 1250.0);
  spin.SetText("one");
  EXPECT_EQ(spin.Value(), 1250.0);
}

TEST_F(TSpinEditTest, AnAssignmentReplacesWhatIsBeingTyped) {
  spin.SetValue(7);
  frame.InputText(spin, "99");
  spin.SetValue(7);
  EXPECT_EQ(spin.Text(), "7");
  frame.InputLeave();
  EXPECT_EQ(spin.Value(), 7.0);
}

TEST_F(TSpinEditTest, TellsOfRealChangesOnly) {
  TNotes notes;
  NoteAll(spin, notes);
  spin.SetValue(5);
  spin.SetValue(5);
  frame.InputText(spin, "6");
  EXPECT_EQ(notes, (TNotes{"spin changed"}));
  frame.InputLeave();
  EXPECT_EQ(notes, (TNotes{"spin changed", "spin changed", "spin left"}));
  TypeAndLeave(spin, "6");
  EXPECT_EQ(notes, (TNotes{"spin changed", "spin changed", "spin left", "spin left"}));
}

}  // namespace
}  // namespace algo::forms::tests
