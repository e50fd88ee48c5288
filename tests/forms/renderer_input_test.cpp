// What a renderer with widgets of its own sends: whole texts while they are edited, and the focus by key.

#include <gtest/gtest.h>

#include "tests/forms/sample_form.h"

namespace algo::forms::tests {
namespace {

struct TRendererInput : testing::Test {
  TRendererInput() {
    NoteAll(line, notes);
    NoteAll(number, notes);
  }

  TNotes notes;
  std::shared_ptr<TSampleFrame> frame = std::make_shared<TSampleFrame>();
  TTextEdit& line = frame->Place<TTextEdit>("line");
  TSpinEdit& number = frame->Place<TSpinEdit>("number");
  TCheckBox& box = frame->Place<TCheckBox>("box");
};

TEST_F(TRendererInput, ATextEditedAnywhereChangesALineOnce) {
  line.SetText("0005");
  notes.clear();
  EXPECT_EQ(frame->InputTyped(line, "00105"), TInputResult::Taken);
  EXPECT_EQ(line.Text(), "00105");
  EXPECT_EQ(notes, (TNotes{"line changed"}));
}

TEST_F(TRendererInput, ANumberIsMadeOfWhatWasTypedWhenItIsLeft) {
  number.SetMax(5000);
  EXPECT_EQ(frame->InputTyped(number, "1,"), TInputResult::Taken);
  EXPECT_EQ(frame->InputTyped(number, "1,012.5"), TInputResult::Taken);
  EXPECT_EQ(number.Value(), std::nullopt);
  EXPECT_EQ(number.Text(), "1,012.5");
  frame->InputLeave();
  EXPECT_EQ(number.Value(), 1012.5);
}

TEST_F(TRendererInput, ATextThatTheEditorDoesNotAcceptChangesNothing) {
  number.SetValue(7);
  number.SetMin(0);
  notes.clear();
  EXPECT_EQ(frame->InputTyped(number, "7a"), TInputResult::Unsuited);
  EXPECT_EQ(frame->InputTyped(number, "-7"), TInputResult::Unsuited);
  EXPECT_EQ(frame->InputTyped(number, "7.1.2"), TInputResult::Unsuited);
  EXPECT_EQ(frame->InputTyped(box, "7"), TInputResult::Unsuited);
  EXPECT_EQ(number.Text(), "7");
  EXPECT_EQ(frame->Focused(), nullptr);
  EXPECT_TRUE(notes.empty());
}

TEST_F(TRendererInput, TypingNeedsAnEditorThatTakesInput) {
  line.SetReadOnly(true);
  EXPECT_EQ(frame->InputTyped(line, "A"), TInputResult::ReadOnly);
  line.SetReadOnly(false);
  line.SetEnabled(false);
  EXPECT_EQ(frame->InputTyped(line, "A"), TInputResult::Disabled);
  line.SetVisible(false);
  EXPECT_EQ(frame->InputTyped(line, "A"), TInputResult::Hidden);
  EXPECT_EQ(line.Text(), "");
}

TEST_F(TRendererInput, TheFocusComesWithoutAClick) {
  frame->InputFocus(line, TFocusCause::Other);
  notes.clear();
  EXPECT_EQ(frame->InputFocus(number, TFocusCause::Other), TInputResult::Taken);
  EXPECT_TRUE(number.Focused());
  EXPECT_EQ(notes, (TNotes{"line left"}));
  number.SetEnabled(false);
  EXPECT_EQ(frame->InputFocus(number, TFocusCause::Other), TInputResult::Disabled);
}

struct TCounts final : TFrameObserver {
  void ControlChanged(const TControl& /*control*/) override { ++changes; }
  void LayoutChanged() override {}
  void FocusChanged() override {}
  void FrameDestroyed() override { ++gone; }
  int changes = 0;
  int gone = 0;
};

TEST_F(TRendererInput, ATypedNumberIsShownOnceHoweverLongItIs) {
  frame->InputFocus(number, TFocusCause::Other);
  TCounts counts;
  frame->AddObserver(counts);
  frame->InputText(number, std::string(160000, '1'));
  EXPECT_EQ(counts.changes, 1);
  frame->RemoveObserver(counts);
}

TEST_F(TRendererInput, AnObserverIsNotifiedWhenTheFrameIsDestroyed) {
  TCounts stays;
  TCounts left;
  frame->AddObserver(stays);
  frame->AddObserver(left);
  frame->RemoveObserver(left);
  frame.reset();
  EXPECT_EQ(stays.gone, 1);
  EXPECT_EQ(left.gone, 0);
}

}  // namespace
}  // namespace algo::forms::tests
