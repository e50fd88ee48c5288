#pragma once

// A small form with one control of each kind, in an active window.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>
#include <memory>
#include <string>
#include <vector>

#include "forms/choices.h"
#include "forms/frame.h"
#include "terminal/render/frame_view.h"
#include "terminal/render/qt_text.h"
#include "terminal/ui_driver/differences.h"

namespace algo::terminal::render {

class TRenderedFrame : public forms::TFrame {
 public:
  TRenderedFrame() : TFrame("TRenderedFrame", "lcSample") {}

  /// Makes a control with a captioned item "li<Name>" in the group.
  template <class TKind, class... TArguments>
  TKind& Place(const std::string& name, forms::TLayoutGroup& group, TArguments&&... arguments) {
    TKind& control = Add<TKind>(name, std::forward<TArguments>(arguments)...);
    Layout().AddItem("li" + name, group, control).SetCaption("Caption of " + name);
    return control;
  }

  forms::TLayoutGroup& top = Layout().AddGroup("lgTop", nullptr, forms::TDirection::Vertical);
  forms::TLayoutGroup& second = Layout().AddGroup("lgSecond", nullptr, forms::TDirection::Vertical);
  forms::TLayoutGroup& inner = Layout().AddGroup("lgInner", &second, forms::TDirection::Vertical);
  forms::TTextEdit& account = Place<forms::TTextEdit>("edtAccount", top);
  forms::TSpinEdit& quantity = Place<forms::TSpinEdit>("edtQuantity", top);
  forms::TComboBox& kind = Place<forms::TComboBox>("cmbKind", top);
  forms::TDateEdit& start = Place<forms::TDateEdit>("deStart", inner);
  forms::TCheckBox& box = Place<forms::TCheckBox>("cbBox", top);
  forms::TButton& button = Place<forms::TButton>("btnGo", top);
  forms::TSpeedButton& buy = Place<forms::TSpeedButton>("btnBuy", top, 1);
  forms::TSpeedButton& sell = Place<forms::TSpeedButton>("btnSell", top, 1);
};

/// Knows two accounts.
class TSampleAssist final : public TEditorAssist {
 public:
  std::vector<TCompletion> Completions(const forms::TTextEdit& /*editor*/,
                                       std::string_view typed) const override {
    std::vector<TCompletion> found;
    for (const TCompletion& known : {TCompletion{"A-1001", "Main account"}, TCompletion{"A-1002", ""}}) {
      if (known.text.starts_with(typed)) found.push_back(known);
    }
    return found;
  }
};

class TRenderedForm : public testing::Test {
 protected:
  TRenderedForm() {
    frame->kind.Refill({"One", "Two", "Three"}, -1);
    frame->quantity.SetStep(5);
    view = new TFrameView(frame, assist, &window);
    auto* column = new QVBoxLayout(&window);
    column->addWidget(&focusSink);
    column->addWidget(view);
    focusSink.setFocusPolicy(Qt::ClickFocus);
    focusSink.setMinimumSize(20, 20);
    window.show();
    (void)QTest::qWaitForWindowActive(&window);
    focusSink.setFocus();
  }

  QWidget& Input(const forms::TControl& control) const { return view->Find(control)->Input(); }

  void GoTo(const forms::TControl& control) const { Input(control).setFocus(Qt::TabFocusReason); }

  void Type(const forms::TControl& control, const char* text) const {
    GoTo(control);
    QTest::keyClicks(&Input(control), QString::fromUtf8(text));
  }

  void Leave() { QTest::mouseClick(&focusSink, Qt::LeftButton); }

  QString Shown(const forms::TControl& control) const { return view->Find(control)->ShownText(); }

  TSampleAssist assist;
  std::shared_ptr<TRenderedFrame> frame = std::make_shared<TRenderedFrame>();
  QWidget window;
  QWidget focusSink{&window};
  TFrameView* view = nullptr;
};

}  // namespace algo::terminal::render
