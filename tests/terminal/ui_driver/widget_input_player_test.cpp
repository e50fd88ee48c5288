// The trader's input at real widgets does to the frame, and answers, what the frame's own operations do.

#include "terminal/ui_driver/widget_input_player.h"

#include "terminal/drive/json.h"
#include "terminal/ui_driver/separate_windows.h"
#include "tests/terminal/render/rendered_form.h"

namespace algo::terminal::ui_driver {
namespace {

using forms::TInputResult;

struct TInputAtWidgets : testing::Test {
  TInputAtWidgets() { frame->kind.Refill({"One", "Two", "Three"}, -1); }

  QWidget& Widget(const forms::TControl& control) { return windows.ViewOf(frame).Find(control)->Input(); }

  std::shared_ptr<render::TRenderedFrame> frame = std::make_shared<render::TRenderedFrame>();
  TSeparateWindows windows;
  TWidgetInputPlayer input{windows};
};

TEST_F(TInputAtWidgets, TypedTextReplacesWhatWasThereAndIsCommittedOnLeaving) {
  frame->quantity.SetValue(7);
  EXPECT_EQ(input.Type(frame, frame->quantity, "12x5"), TInputResult::Taken);
  EXPECT_EQ(frame->quantity.Text(), "125");
  EXPECT_EQ(frame->quantity.Value(), 7);
  input.Leave(frame);
  EXPECT_EQ(frame->quantity.Value(), 125);
  EXPECT_EQ(frame->Focused(), nullptr);
  EXPECT_EQ(input.Type(frame, frame->quantity, ""), TInputResult::Taken);
  EXPECT_EQ(frame->quantity.Text(), "");
}

TEST_F(TInputAtWidgets, ControlCharactersAreNotTyped) {
  EXPECT_EQ(input.Type(frame, frame->account, "A\n1\t\x7F"), TInputResult::Taken);
  EXPECT_EQ(frame->account.Text(), "A1");
  EXPECT_TRUE(frame->account.Focused());
}

TEST_F(TInputAtWidgets, EnterReachesTheFrame) {
  frame->account.OnEnterKey = [this] { frame->SetFocus(&frame->start); };
  EXPECT_EQ(input.Enter(frame, frame->account), TInputResult::Taken);
  EXPECT_TRUE(frame->start.Focused());
}

TEST_F(TInputAtWidgets, AClickPressesButtonsAndTogglesBoxes) {
  int pressed = 0;
  frame->button.OnClick = [&pressed] { ++pressed; };
  EXPECT_EQ(input.Click(frame, frame->button), TInputResult::Taken);
  EXPECT_EQ(pressed, 1);
  EXPECT_EQ(input.Click(frame, frame->box), TInputResult::Taken);
  EXPECT_TRUE(frame->box.Checked());
}

TEST_F(TInputAtWidgets, ItemsArePickedByIndex) {
  for (const std::int32_t index : {2, 0, 1}) {
    EXPECT_EQ(input.Pick(frame, frame->kind, index), TInputResult::Taken);
    EXPECT_EQ(frame->kind.Index(), index);
  }
  EXPECT_EQ(input.Pick(frame, frame->kind, 3), TInputResult::OutOfRange);
  EXPECT_EQ(input.Pick(frame, frame->kind, -1), TInputResult::OutOfRange);
  EXPECT_EQ(frame->kind.Index(), 1);
}

TEST_F(TInputAtWidgets, InputThatAControlDoesNotTakeIsRefusedWithTheReason) {
  EXPECT_EQ(input.Type(frame, frame->box, "x"), TInputResult::Unsuited);
  EXPECT_EQ(input.Pick(frame, frame->account, 0), TInputResult::Unsuited);
  frame->account.SetReadOnly(true);
  EXPECT_EQ(input.Type(frame, frame->account, "x"), TInputResult::ReadOnly);
  frame->account.SetEnabled(false);
  EXPECT_EQ(input.Type(frame, frame->account, "x"), TInputResult::Disabled);
  frame->top.SetVisible(false);
  EXPECT_EQ(input.Enter(frame, frame->account), TInputResult::Hidden);
  EXPECT_EQ(input.Click(frame, frame->button), TInputResult::Hidden);
  EXPECT_EQ(frame->account.Text(), "");
}

TEST_F(TInputAtWidgets, AScreenThatShowsSomethingElseIsReported) {
  EXPECT_NO_THROW(input.Settle());
  Widget(frame->button).hide();
  try {
    input.Settle();
    FAIL();
  } catch (const drive::ECommandError& error) {
    EXPECT_STREQ(error.what(), "btnGo shows visible 'no' instead of 'yes'");
  }
}

TEST(SeparateWindows, AFrameHasOneWindowUntilItIsGone) {
  TSeparateWindows windows;
  auto first = std::make_shared<render::TRenderedFrame>();
  const auto second = std::make_shared<render::TRenderedFrame>();
  render::TFrameView& view = windows.ViewOf(first);
  EXPECT_EQ(&windows.ViewOf(first), &view);
  EXPECT_NE(&windows.ViewOf(second), &view);
  EXPECT_TRUE(windows.ViewOf(first).isActiveWindow());
  EXPECT_EQ(windows.Views().size(), 2U);
  EXPECT_EQ(windows.FocusSinkOf(view).window(), view.window());
  EXPECT_FALSE(view.isAncestorOf(&windows.FocusSinkOf(view)));
  first.reset();
  EXPECT_EQ(windows.Views().size(), 1U);
}

}  // namespace
}  // namespace algo::terminal::ui_driver
