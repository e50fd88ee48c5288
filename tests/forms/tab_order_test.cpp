// Where Tab goes, and what of a text is selected when it gets there.

#include <gtest/gtest.h>

#include "tests/forms/sample_form.h"

namespace algo::forms::tests {
namespace {

constexpr auto Forward = TTabDirection::Forward;
constexpr auto Backward = TTabDirection::Backward;

struct TTabOrderTest : testing::Test {
  template <class TKind>
  TKind& In(TLayoutGroup& group, const std::string& name) {
    auto& control = frame.Add<TKind>(name);
    layout.AddItem("li" + name, group, control);
    return control;
  }

  TNotes Order() {
    TNotes names;
    for (const TControl* control : layout.TabOrder()) names.push_back(control->Name());
    return names;
  }
  std::string Next(const TControl* control, TTabDirection direction = Forward) {
    const TControl* next = layout.NextInTabOrder(control, direction);
    return next == nullptr ? "beyond" : next->Name();
  }

  TSampleFrame frame;
  TLayoutControl& layout = frame.Layout();
  TLayoutGroup& right = layout.AddGroup("lgRight", nullptr, TDirection::Vertical);
  TLayoutGroup& inner = layout.AddGroup("lgInner", &frame.top, TDirection::Horizontal);
  // Made in another order than they stand.
  TTextEdit& aside = In<TTextEdit>(right, "aside");
  TSpinEdit& last = In<TSpinEdit>(frame.top, "last");
  TTextEdit& first = In<TTextEdit>(inner, "first");
  TCheckBox& second = In<TCheckBox>(inner, "second");
};

TEST_F(TTabOrderTest, IsThatOfTheLayoutDepthFirst) {
  EXPECT_EQ(Order(), (TNotes{"first", "second", "last", "aside"}));
  layout.Move(inner, right);
  EXPECT_EQ(Order(), (TNotes{"last", "aside", "first", "second"}));
}

TEST_F(TTabOrderTest, AControlThatStandsNowhereIsNotInIt) {
  const auto& loose = frame.Add<TTextEdit>("loose");
  EXPECT_EQ(Order().size(), 4U);
  EXPECT_EQ(Next(&loose), "beyond");
}

TEST_F(TTabOrderTest, TabGoesOnAndShiftTabBack) {
  EXPECT_EQ(Next(&first), "second");
  EXPECT_EQ(Next(&last), "aside");
  EXPECT_EQ(Next(&aside), "beyond");
  EXPECT_EQ(Next(&aside, Backward), "last");
  EXPECT_EQ(Next(&first, Backward), "beyond");
}

TEST_F(TTabOrderTest, TabEntersTheFrameAtEitherEnd) {
  EXPECT_EQ(Next(nullptr), "first");
  EXPECT_EQ(Next(nullptr, Backward), "aside");
}

TEST_F(TTabOrderTest, WhatCannotTakeTheFocusIsPassedOver) {
  second.SetEnabled(false);
  EXPECT_EQ(Next(&first), "last");
  last.SetVisible(false);
  EXPECT_EQ(Next(&first), "aside");
  right.SetVisible(false);
  EXPECT_EQ(Next(&first), "beyond");
  inner.SetEnabled(false);
  EXPECT_EQ(Next(nullptr), "beyond");
}

TEST_F(TTabOrderTest, AControlThatCannotTakeTheFocusIsLeftFromItsPlace) {
  second.SetEnabled(false);
  EXPECT_EQ(Next(&second), "last");
  EXPECT_EQ(Next(&second, Backward), "first");
}

TEST_F(TTabOrderTest, WhatIsReadOnlyCanBeReached) {
  last.SetReadOnly(true);
  EXPECT_EQ(Next(&second), "last");
}

TEST_F(TTabOrderTest, TabSelectsTheTextThatItComesTo) {
  first.SetText("0005");
  EXPECT_EQ(frame.InputFocus(first, TFocusCause::Tab), TInputResult::Taken);
  EXPECT_EQ(first.SelectedText(), "0005");
  last.SetValue(12);
  frame.InputFocus(last, TFocusCause::Tab);
  EXPECT_EQ(first.SelectedText(), "");
  EXPECT_EQ(last.SelectedText(), "12");
}

TEST_F(TTabOrderTest, EnterLeavesTheCaretWhereItWas) {
  last.SetValue(12);
  first.OnEnterKey = [this] { frame.SetFocus(&last); };
  frame.InputEnter(first);
  EXPECT_TRUE(last.Focused());
  EXPECT_EQ(last.SelectedText(), "");
  frame.InputFocus(first, TFocusCause::Other);
  frame.InputFocus(last, TFocusCause::Other);
  EXPECT_EQ(last.SelectedText(), "");
}

TEST_F(TTabOrderTest, AnEmptyEditorHasNothingToSelect) {
  frame.InputFocus(first, TFocusCause::Tab);
  first.SetText("0005");
  EXPECT_EQ(first.SelectedText(), "");
}

TEST_F(TTabOrderTest, AClickEndsTheSelection) {
  first.SetText("0005");
  frame.InputFocus(first, TFocusCause::Tab);
  frame.InputClick(first);
  EXPECT_EQ(first.SelectedText(), "");
}

}  // namespace
}  // namespace algo::forms::tests
