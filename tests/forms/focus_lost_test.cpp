// The focus of a control that is hidden or disabled: the control is left as by the trader, and then nothing
// has the focus.

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <utility>

#include "tests/forms/sample_form.h"

namespace algo::forms::tests {
namespace {

/// Notes when it is drawn.
struct TNotingObserver : TFrameObserver {
  explicit TNotingObserver(TNotes& heard) : notes(heard) {}
  void ControlChanged(const TControl& /*control*/) override {}
  void LayoutChanged() override { notes.emplace_back("drawn"); }
  void FocusChanged() override {}

  TNotes& notes;
};

struct TFocusLost : testing::Test {
  TFocusLost() {
    frame->Layout().Move(*number.Item(), inner);
    NoteAll(number, notes);
    frame->AddObserver(observer);
    frame->InputText(number, "12");
  }
  ~TFocusLost() override {
    if (frame) frame->RemoveObserver(observer);
  }

  TNotes notes;
  TNotingObserver observer{notes};
  std::shared_ptr<TSampleFrame> frame = std::make_shared<TSampleFrame>();
  TLayoutGroup& inner = frame->Layout().AddGroup("lgInner", &frame->top, TDirection::Vertical);
  TSpinEdit& number = frame->Place<TSpinEdit>("number");
  TTextEdit& other = frame->Place<TTextEdit>("other");
};

struct TWay {
  const char* name;
  std::function<void(TFocusLost&)> goes;
  std::function<void(TFocusLost&)> comes;
};

const TWay Ways[] = {
    {"hidden", [](TFocusLost& t) { t.number.SetVisible(false); },
     [](TFocusLost& t) { t.number.SetVisible(true); }},
    {"disabled", [](TFocusLost& t) { t.number.SetEnabled(false); },
     [](TFocusLost& t) { t.number.SetEnabled(true); }},
    {"item hidden", [](TFocusLost& t) { t.number.Item()->SetVisible(false); },
     [](TFocusLost& t) { t.number.Item()->SetVisible(true); }},
    {"item disabled", [](TFocusLost& t) { t.number.Item()->SetEnabled(false); },
     [](TFocusLost& t) { t.number.Item()->SetEnabled(true); }},
    {"group hidden", [](TFocusLost& t) { t.inner.SetVisible(false); },
     [](TFocusLost& t) { t.inner.SetVisible(true); }},
    {"top group disabled", [](TFocusLost& t) { t.frame->top.SetEnabled(false); },
     [](TFocusLost& t) { t.frame->top.SetEnabled(true); }},
};

TEST_F(TFocusLost, LeavesTheControlWithWhatWasTypedTakenUp) {
  for (const TWay& way : Ways) {
    SCOPED_TRACE(way.name);
    frame->InputText(number, "12");
    notes.clear();
    way.goes(*this);
    EXPECT_EQ(frame->Focused(), nullptr);
    EXPECT_EQ(number.Value(), 12);
    ASSERT_GE(notes.size(), 2U);
    EXPECT_EQ(notes[0], "number changed");
    EXPECT_EQ(notes[1], "number left");
    way.comes(*this);
    EXPECT_EQ(frame->Focused(), nullptr) << "it does not come back by itself";
    number.SetValue(0);
  }
}

TEST_F(TFocusLost, IsJudgedWhenTheOutermostUpdateEnds) {
  for (const TWay& way : Ways) {
    SCOPED_TRACE(way.name);
    frame->InputText(number, "12");
    notes.clear();
    {
      const TLayoutUpdate outer(frame->Layout());
      {
        const TLayoutUpdate update(frame->Layout());
        way.goes(*this);
      }
      EXPECT_TRUE(number.Focused());
      way.comes(*this);
    }
    EXPECT_TRUE(number.Focused());
    EXPECT_EQ(number.Text(), "12");
    EXPECT_TRUE(notes.empty() || notes == TNotes{"drawn"});
  }
}

TEST_F(TFocusLost, IsLeftBeforeTheNewLayoutIsDrawnWhichHappensOnce) {
  number.OnExit = [this] {
    notes.emplace_back("number left");
    other.SetVisible(false);
  };
  {
    const TLayoutUpdate update(frame->Layout());
    number.SetVisible(false);
  }
  EXPECT_EQ(notes, (TNotes{"number changed", "number left", "drawn"}));
}

TEST_F(TFocusLost, AnExitHandlerThatFailsDoesNotStopTheHiding) {
  number.OnExit = [] { throw std::runtime_error("no"); };
  EXPECT_NO_THROW(number.SetVisible(false));
  EXPECT_FALSE(number.Visible());
  EXPECT_EQ(frame->Focused(), nullptr);
  EXPECT_EQ(notes.back(), "drawn");
}

TEST_F(TFocusLost, TheHandlerMaySendTheFocusElsewhere) {
  number.OnExit = [this] { frame->SetFocus(&other); };
  number.SetEnabled(false);
  EXPECT_TRUE(other.Focused());
}

TEST_F(TFocusLost, TheFrameMayGoWhileTheControlIsLeft) {
  number.OnExit = [this] { frame.reset(); };
  number.SetEnabled(false);
  EXPECT_EQ(frame, nullptr);
}

TEST_F(TFocusLost, WhatTheProgramAssignsDiscardsWhatWasTyped) {
  number.SetValue(5);
  EXPECT_EQ(number.Text(), "5");
  number.SetVisible(false);
  EXPECT_EQ(number.Value(), 5);
}

TEST_F(TFocusLost, NothingIsLeftWhileTheFrameIsDestroyed) {
  struct TLastWords : TSampleFrame {
    ~TLastWords() override { number.SetEnabled(false); }
    TSpinEdit& number = Place<TSpinEdit>("number");
  };
  TNotes heard;
  auto going = std::make_shared<TLastWords>();
  NoteAll(going->number, heard);
  going->InputText(going->number, "3");
  heard.clear();
  going.reset();
  EXPECT_EQ(heard, TNotes{});
}

}  // namespace
}  // namespace algo::forms::tests
