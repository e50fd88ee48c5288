#include <gtest/gtest.h>

#include "tests/forms/sample_form.h"
#include "text/errors.h"

namespace algo::forms::tests {
namespace {

struct TComboBoxTest : testing::Test {
  TComboBoxTest() {
    combo.Refill({"a", "b", "c"}, 0);
    NoteAll(combo, notes);
  }

  TNotes notes;
  TSampleFrame frame;
  TComboBox& combo = frame.Place<TComboBox>("combo");
};

TEST_F(TComboBoxTest, PicksFromMinusOneToTheLastItem) {
  combo.SetIndex(2);
  EXPECT_EQ(combo.Text(), "c");
  combo.SetIndex(-1);
  EXPECT_EQ(combo.Text(), "");
  EXPECT_EQ(combo.Index(), -1);
}

TEST_F(TComboBoxTest, AnyOtherIndexIsAnErrorAndChangesNothing) {
  EXPECT_THROW(combo.SetIndex(3), EListIndexError);
  EXPECT_THROW(combo.SetIndex(-2), EListIndexError);
  EXPECT_EQ(combo.Index(), 0);
  EXPECT_EQ(notes, TNotes{});
}

TEST_F(TComboBoxTest, ChangesAreTheSameFromTraderAndProgram) {
  combo.SetIndex(1);
  frame.InputPick(combo, 2);
  EXPECT_EQ(notes, (TNotes{"combo changed", "combo changed"}));
}

TEST_F(TComboBoxTest, PickingThePickedItemIsNoChange) {
  combo.SetIndex(0);
  EXPECT_EQ(frame.InputPick(combo, 0), TInputResult::Taken);
  EXPECT_EQ(notes, TNotes{});
}

TEST_F(TComboBoxTest, PickingThePickedItemIsAChangeOnceWhereTheLastChoiceCameToNothing) {
  combo.Unsettle();
  frame.InputPick(combo, 0);
  frame.InputPick(combo, 0);
  EXPECT_EQ(notes, TNotes{"combo changed"});
  EXPECT_EQ(combo.Index(), 0);
}

TEST_F(TComboBoxTest, TheTraderPicksWhatTheListHas) {
  EXPECT_EQ(frame.InputPick(combo, 3), TInputResult::OutOfRange);
  EXPECT_EQ(frame.InputPick(combo, -1), TInputResult::OutOfRange);
  EXPECT_EQ(combo.Index(), 0);
}

TEST_F(TComboBoxTest, ARefillIsSilent) {
  combo.Refill({"x"}, 0);
  EXPECT_EQ(combo.Text(), "x");
  combo.Refill({}, -1);
  EXPECT_EQ(combo.Count(), 0);
  EXPECT_EQ(notes, TNotes{});
}

TEST_F(TComboBoxTest, ARefillWithAnItemThatItLacksIsAnErrorAndChangesNothing) {
  EXPECT_THROW(combo.Refill({"x"}, 1), EListIndexError);
  EXPECT_EQ(combo.Items(), (std::vector<std::string>{"a", "b", "c"}));
}

TEST_F(TComboBoxTest, TheFirstAndTheLastOfAnEmptyListAreNothing) {
  combo.Refill({}, -1);
  combo.SelectFirst();
  EXPECT_EQ(combo.Index(), -1);
  combo.SelectLast();
  EXPECT_EQ(combo.Index(), -1);
  EXPECT_EQ(notes, TNotes{});
}

TEST(CheckBox, AClickTogglesAndThenRunsTheClickHandler) {
  TNotes notes;
  TSampleFrame frame;
  auto& check = frame.Place<TCheckBox>("check");
  NoteAll(check, notes);
  frame.InputClick(check);
  EXPECT_TRUE(check.Checked());
  frame.InputClick(check);
  EXPECT_FALSE(check.Checked());
  EXPECT_EQ(notes, (TNotes{"check changed", "check clicked", "check changed", "check clicked"}));
}

TEST(CheckBox, TheProgramClicksNothing) {
  TNotes notes;
  TSampleFrame frame;
  auto& check = frame.Place<TCheckBox>("check");
  NoteAll(check, notes);
  check.SetChecked(true);
  check.SetChecked(true);
  EXPECT_EQ(notes, (TNotes{"check changed"}));
}

TEST(CheckBox, AReadOnlyOneGetsTheFocusAndNothingMore) {
  TNotes notes;
  TSampleFrame frame;
  auto& check = frame.Place<TCheckBox>("check");
  NoteAll(check, notes);
  check.SetReadOnly(true);
  EXPECT_EQ(frame.InputClick(check), TInputResult::Taken);
  EXPECT_TRUE(check.Focused());
  EXPECT_FALSE(check.Checked());
  EXPECT_EQ(notes, TNotes{});
}

TEST(SpeedButton, OfAGroupAtMostOneIsDown) {
  TSampleFrame frame;
  auto& buy = frame.Place<TSpeedButton>("buy", 1);
  auto& sell = frame.Place<TSpeedButton>("sell", 1);
  auto& elsewhere = frame.Place<TSpeedButton>("elsewhere", 2);
  elsewhere.SetPressed(true);
  frame.InputClick(buy);
  frame.InputClick(buy);
  EXPECT_TRUE(buy.Pressed());
  frame.InputClick(sell);
  EXPECT_TRUE(sell.Pressed());
  EXPECT_FALSE(buy.Pressed());
  EXPECT_TRUE(elsewhere.Pressed());
  sell.SetPressed(false);
  EXPECT_FALSE(sell.Pressed());
  EXPECT_FALSE(buy.Pressed());
}

TEST(Button, EnterPressesIt) {
  TNotes notes;
  TSampleFrame frame;
  auto& button = frame.Place<TButton>("button");
  NoteAll(button, notes);
  frame.InputEnter(button);
  EXPECT_EQ(notes, (TNotes{"button clicked"}));
}

}  // namespace
}  // namespace algo::forms::tests
