#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/forms/sample_form.h"

namespace algo::forms::tests {
namespace {

struct TInputTest : testing::Test {
  TInputTest() {
    for (TControl* control : {static_cast<TControl*>(&first), static_cast<TControl*>(&second)}) {
      NoteAll(*control, notes);
    }
  }

  TNotes notes;
  TSampleFrame frame;
  TTextEdit& first = frame.Place<TTextEdit>("first");
  TSpinEdit& second = frame.Place<TSpinEdit>("second");
  TComboBox& combo = frame.Place<TComboBox>("combo");
};

TEST_F(TInputTest, TheFocusIsAtOneControlAtMost) {
  EXPECT_EQ(frame.Focused(), nullptr);
  frame.InputClick(first);
  EXPECT_TRUE(first.Focused());
  frame.InputClick(second);
  EXPECT_FALSE(first.Focused());
  EXPECT_TRUE(second.Focused());
  frame.InputLeave();
  EXPECT_EQ(frame.Focused(), nullptr);
}

TEST_F(TInputTest, AControlIsLeftBeforeTheNextOneActs) {
  frame.InputClick(first);
  frame.InputClick(second);
  EXPECT_EQ(notes, (TNotes{"first clicked", "first left", "second clicked"}));
}

TEST_F(TInputTest, TheFocusedControlIsNotLeftForItself) {
  frame.InputClick(first);
  frame.InputClick(first);
  frame.InputEnter(first);
  EXPECT_EQ(notes, (TNotes{"first clicked", "first clicked", "first entered"}));
}

TEST_F(TInputTest, TheHostEditorReactsBeforeTheExitHandlerAndAfterTheTyping) {
  second.SetHostEditor([&] { notes.push_back("host sees " + second.Text()); });
  TypeAndLeave(second, "4");
  EXPECT_EQ(notes, (TNotes{"second changed", "host sees 4", "second left"}));
}

TEST_F(TInputTest, AHostEditorThatFailsIsToldInPlaceOfTheExitHandlerAndTheFailureRunsOn) {
  second.SetHostEditor([] { throw std::runtime_error("no"); });
  second.OnHostEditorFailed = [&] { notes.push_back("failed at " + second.Text()); };
  EXPECT_THROW(TypeAndLeave(second, "4"), std::runtime_error);
  EXPECT_EQ(notes, (TNotes{"second changed", "failed at 4"}));
  EXPECT_EQ(frame.Focused(), nullptr);
}

TEST_F(TInputTest, TheCommitNotificationDoesWhatLeavingDoesAndKeepsTheFocus) {
  second.SetHostEditor([&] { notes.push_back("host"); });
  frame.InputText(second, "4");
  second.Commit();
  EXPECT_EQ(notes, (TNotes{"second changed", "host", "second left"}));
  EXPECT_TRUE(second.Focused());
}

TEST_F(TInputTest, AHostEditorThatWasTakenOffReactsNoMore) {
  second.SetHostEditor([&] { notes.push_back("host"); });
  second.SetHostEditor({});
  second.Commit();
  EXPECT_EQ(notes, (TNotes{"second left"}));
}

TEST_F(TInputTest, AHandlerMayReplaceItself) {
  first.OnClick = [&] {
    first.OnClick = [&] { notes.push_back("second time"); };
    notes.push_back("first time");
  };
  frame.InputClick(first);
  frame.InputClick(first);
  EXPECT_EQ(notes, (TNotes{"first time", "second time"}));
}

TEST_F(TInputTest, ADisabledControlTakesNoInputFromTheTrader) {
  frame.InputClick(first);
  second.SetEnabled(false);
  EXPECT_EQ(frame.InputText(second, "1"), TInputResult::Disabled);
  EXPECT_EQ(frame.InputClick(second), TInputResult::Disabled);
  EXPECT_EQ(frame.InputEnter(second), TInputResult::Disabled);
  EXPECT_TRUE(first.Focused());
  EXPECT_EQ(second.Text(), "");
  second.SetValue(1);
  EXPECT_EQ(second.Text(), "1");
}

TEST_F(TInputTest, AControlIsDisabledThroughItsGroupToo) {
  frame.top.SetEnabled(false);
  EXPECT_TRUE(second.Enabled());
  EXPECT_EQ(frame.InputClick(second), TInputResult::Disabled);
}

TEST_F(TInputTest, AControlThatDoesNotShowTakesNoInput) {
  second.SetVisible(false);
  EXPECT_EQ(frame.InputText(second, "1"), TInputResult::Hidden);
  second.SetVisible(true);
  frame.top.SetVisible(false);
  EXPECT_EQ(frame.InputText(second, "1"), TInputResult::Hidden);
  auto& loose = frame.Add<TTextEdit>("loose");
  EXPECT_EQ(frame.InputText(loose, "1"), TInputResult::Hidden);
}

TEST_F(TInputTest, AReadOnlyControlCanBeClickedButNotChanged) {
  combo.Refill({"a", "b"}, 0);
  first.SetReadOnly(true);
  combo.SetReadOnly(true);
  EXPECT_EQ(frame.InputText(first, "x"), TInputResult::ReadOnly);
  EXPECT_EQ(frame.InputPick(combo, 1), TInputResult::ReadOnly);
  EXPECT_EQ(frame.InputClick(first), TInputResult::Taken);
  EXPECT_EQ(first.Text(), "");
  EXPECT_EQ(combo.Index(), 0);
}

TEST_F(TInputTest, EachKindOfControlTakesItsOwnInput) {
  EXPECT_EQ(frame.InputText(combo, "a"), TInputResult::Unsuited);
  EXPECT_EQ(frame.InputPick(first, 0), TInputResult::Unsuited);
}

TEST_F(TInputTest, LeavingTheFormerControlMayLockTheNextOne) {
  frame.InputClick(first);
  first.OnExit = [&] { second.SetEnabled(false); };
  EXPECT_EQ(frame.InputText(second, "5"), TInputResult::Disabled);
  EXPECT_EQ(second.Text(), "");
}

TEST_F(TInputTest, TheFocusHasMovedWhenAnExitHandlerFails) {
  frame.InputClick(first);
  first.OnExit = [] { throw std::runtime_error("no"); };
  EXPECT_THROW(frame.InputClick(second), std::runtime_error);
  EXPECT_TRUE(second.Focused());
}

}  // namespace
}  // namespace algo::forms::tests
