// A form on the screen: focus, buttons, lists, what is shown, and what happens when the form is destroyed.

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <functional>
#include <string>

#include "tests/terminal/render/paint_count.h"
#include "tests/terminal/render/rendered_form.h"

namespace algo::terminal::render {
namespace {

using TShownForm = TRenderedForm;

TEST_F(TShownForm, EveryWidgetHasTheNameOfItsControlAndSaysWhatItIs) {
  for (const char* name : {"edtAccount", "edtQuantity", "cmbKind", "deStart", "cbBox", "btnGo", "btnBuy",
                           "btnSell", "lgTop", "lgInner", "liedtAccount"}) {
    EXPECT_NE(view->findChild<QWidget*>(name), nullptr) << name;
  }
  frame->account.SetHint("Which account pays");
  frame->Layout().Changed();
  EXPECT_EQ(Input(frame->account).accessibleName(), "Caption of edtAccount");
  EXPECT_EQ(Input(frame->account).accessibleDescription(), "Which account pays");
  EXPECT_EQ(Input(frame->start).accessibleName(), "Caption of deStart");
}

TEST_F(TShownForm, TabGoesFromFieldToFieldAndLeavesThem) {
  int left = 0;
  frame->account.OnExit = [&left] { ++left; };
  GoTo(frame->account);
  QTest::keyClick(&Input(frame->account), Qt::Key_Tab);
  EXPECT_TRUE(frame->quantity.Focused());
  EXPECT_TRUE(Input(frame->quantity).hasFocus());
  EXPECT_EQ(left, 1);
  QTest::keyClick(&Input(frame->quantity), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(frame->account.Focused());
}

TEST_F(TShownForm, TabGoesTheWayOfTheForm) {
  const auto expectTabsFrom = [this](const forms::TControl* control) {
    int visited = 0;
    GoTo(*control);
    while (const auto* next = frame->Layout().NextInTabOrder(control, forms::TTabDirection::Forward)) {
      QTest::keyClick(&Input(*control), Qt::Key_Tab);
      EXPECT_TRUE(next->Focused()) << next->Name();
      control = next;
      ++visited;
    }
    return visited;
  };
  frame->button.SetEnabled(false);
  EXPECT_EQ(expectTabsFrom(&frame->account), 6);
  frame->Layout().Move(*frame->account.Item(), frame->inner);
  frame->Layout().Move(*frame->quantity.Item(), frame->top);
  EXPECT_EQ(expectTabsFrom(&frame->kind), 6);
  EXPECT_TRUE(frame->account.Focused());
}

TEST_F(TShownForm, AFieldThatIsHiddenOrDisabledIsLeftAndNoOtherTakesTheFocusInItsPlace) {
  const std::function<void(bool)> ways[] = {
      [this](bool shown) { frame->quantity.SetVisible(shown); },
      [this](bool enabled) { frame->quantity.SetEnabled(enabled); },
      [this](bool shown) { frame->quantity.Item()->SetVisible(shown); },
      [this](bool enabled) { frame->quantity.Item()->SetEnabled(enabled); },
      [this](bool shown) { frame->top.SetVisible(shown); },
  };
  std::string left;
  for (const auto& control : frame->Controls()) {
    control->OnExit = [&left, name = control->Name()] { left += name + " "; };
  }
  for (const auto& way : ways) {
    SCOPED_TRACE(&way - ways);
    left.clear();
    GoTo(frame->quantity);
    QTest::keyClicks(&Input(frame->quantity), "12");
    way(false);
    EXPECT_EQ(frame->Focused(), nullptr);
    QWidget* holder = QApplication::focusWidget();
    EXPECT_TRUE(holder == nullptr || !view->isAncestorOf(holder));
    EXPECT_EQ(frame->quantity.Value(), 12);
    EXPECT_EQ(left, "edtQuantity ");
    way(true);
    EXPECT_EQ(frame->Focused(), nullptr);
    frame->quantity.SetValue(std::nullopt);
  }
}

TEST_F(TShownForm, AFieldThatIsDisabledForTheTimeOfAnUpdateKeepsTheFocusAndWhatWasTyped) {
  GoTo(frame->quantity);
  QTest::keyClicks(&Input(frame->quantity), "12");
  {
    const forms::TLayoutUpdate update(frame->Layout());
    frame->quantity.SetEnabled(false);
    frame->quantity.SetEnabled(true);
  }
  EXPECT_TRUE(frame->quantity.Focused());
  EXPECT_TRUE(Input(frame->quantity).hasFocus());
  EXPECT_EQ(frame->quantity.Value(), std::nullopt);
  QTest::keyClicks(&Input(frame->quantity), "3");
  EXPECT_EQ(frame->quantity.Text(), "123");
}

TEST_F(TShownForm, TheFirstFieldThatTakesInputIsTheFormsFirst) {
  frame->Layout().Move(*frame->account.Item(), frame->inner);
  frame->quantity.SetReadOnly(true);
  view->FocusFirst();
  EXPECT_TRUE(frame->kind.Focused());
}

TEST_F(TShownForm, EnterGoesWhereTheFormSendsIt) {
  frame->account.OnEnterKey = [this] { frame->SetFocus(&frame->start); };
  GoTo(frame->account);
  QTest::keyClick(&Input(frame->account), Qt::Key_Return);
  EXPECT_TRUE(Input(frame->start).hasFocus());
  QTest::keyClick(&Input(frame->start), Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_TRUE(frame->start.Focused());
}

TEST_F(TShownForm, AnotherWindowTakesNothingUp) {
  Type(frame->quantity, "12");
  QWidget other;
  other.show();
  other.activateWindow();
  (void)QTest::qWaitForWindowActive(&other);
  EXPECT_TRUE(frame->quantity.Focused());
  EXPECT_EQ(frame->quantity.Value(), std::nullopt);
}

TEST_F(TShownForm, AButtonIsPressedByMouseSpaceAndEnter) {
  int pressed = 0;
  frame->button.OnClick = [&pressed] { ++pressed; };
  QTest::mouseClick(&Input(frame->button), Qt::LeftButton);
  QTest::keyClick(&Input(frame->button), Qt::Key_Space);
  QTest::keyClick(&Input(frame->button), Qt::Key_Return);
  EXPECT_EQ(pressed, 3);
  frame->button.SetEnabled(false);
  QTest::mouseClick(&Input(frame->button), Qt::LeftButton);
  EXPECT_EQ(pressed, 3);
}

TEST_F(TShownForm, OneSideIsDownInItsColour) {
  frame->buy.SetColor(7, 0x006600);
  QTest::mouseClick(&Input(frame->buy), Qt::LeftButton);
  EXPECT_TRUE(static_cast<QAbstractButton&>(Input(frame->buy)).isChecked());
  QTest::mouseClick(&Input(frame->sell), Qt::LeftButton);
  EXPECT_FALSE(static_cast<QAbstractButton&>(Input(frame->buy)).isChecked());
  QTest::mouseClick(&Input(frame->buy), Qt::LeftButton);
  const QImage picture = Input(frame->buy).grab().toImage();
  EXPECT_EQ(picture.pixelColor(picture.width() / 2, 5), QColor(0, 0x66, 0));
}

TEST_F(TShownForm, ABoxThatMayNotBeChangedStaysAsItIs) {
  frame->box.SetReadOnly(true);
  QTest::keyClick(&Input(frame->box), Qt::Key_Space);
  EXPECT_FALSE(frame->box.Checked());
  EXPECT_FALSE(static_cast<QAbstractButton&>(Input(frame->box)).isChecked());
  frame->box.SetReadOnly(false);
  QTest::keyClick(&Input(frame->box), Qt::Key_Space);
  EXPECT_TRUE(frame->box.Checked());
  EXPECT_TRUE(static_cast<QAbstractButton&>(Input(frame->box)).isChecked());
}

TEST_F(TShownForm, AListFollowsARefillAndKeepsWhatTheFormPicked) {
  auto& list = static_cast<QComboBox&>(Input(frame->kind));
  GoTo(frame->kind);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(frame->kind.Index(), 0);
  frame->kind.Refill({"Eins", "Zwei"}, 1);
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(list.currentText(), "Zwei");
  // The form reverts the pick, and the list must not go on showing it.
  frame->kind.OnChange = [this] {
    if (frame->kind.Index() == 0) frame->kind.SetIndex(1);
  };
  QTest::keyClick(&list, Qt::Key_Up);
  EXPECT_EQ(list.currentText(), "Zwei");
}

TEST_F(TShownForm, AHiddenGroupTakesNoRoomAndAMovedOneStandsInItsNewPlace) {
  const int tall = view->sizeHint().height();
  frame->Layout().Move(frame->inner, frame->top);
  QApplication::processEvents();
  EXPECT_EQ(view->findChild<QWidget*>("lgInner")->parentWidget(), view->findChild<QWidget*>("lgTop"));
  EXPECT_TRUE(Input(frame->start).isVisible());
  EXPECT_GT(view->sizeHint().height(), tall);
  frame->inner.SetVisible(false);
  EXPECT_FALSE(Input(frame->start).isVisible());
  EXPECT_TRUE(ui_driver::DifferencesOf(*view).isEmpty());
}

TEST_F(TShownForm, AChangeOfManyThingsIsPaintedOnce) {
  QApplication::processEvents();
  terminal::tests::TPaintCount paints;
  view->installEventFilter(&paints);
  {
    const forms::TLayoutUpdate update(frame->Layout());
    frame->top.SetVisible(false);
    frame->inner.SetCaption("Another heading");
    frame->top.SetVisible(true);
    frame->quantity.SetValue(7);
    frame->account.SetText("A");
    frame->inner.SetVisible(false);
  }
  EXPECT_EQ(paints.count, 0);
  for (int round = 0; round < 5; ++round) QApplication::processEvents();
  EXPECT_EQ(paints.count, 1);
}

TEST_F(TShownForm, CaptionsAreBoldWhereTheStyleIsAndGrowWithIt) {
  auto& item = *frame->Layout().Find("liedtQuantity");
  const auto* label = view->findChild<QWidget*>("liedtQuantity")->findChild<QLabel*>();
  const double plain = label->font().pointSizeF();
  auto& style = frame->Layout().AddStyle("bold");
  item.SetStyle(&style);
  style.SetBold(true);
  style.SetSize(12);
  EXPECT_TRUE(label->font().bold());
  EXPECT_NEAR(label->font().pointSizeF(), plain * 1.5, 0.01);
}

TEST_F(TShownForm, ACaptionIsPlainTextWhateverItHolds) {
  frame->Layout().Find("liedtAccount")->SetCaption("<b>A & B</b>");
  frame->button.SetCaption("Buy & Sell");
  const auto* label = view->findChild<QWidget*>("liedtAccount")->findChild<QLabel*>();
  EXPECT_EQ(label->text(), "<b>A & B</b>");
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
  EXPECT_TRUE(ui_driver::DifferencesOf(*view).isEmpty());
}

TEST_F(TShownForm, AFormThatGoesLeavesAnEmptyWidgetThatTakesKeys) {
  GoTo(frame->quantity);
  QWidget* box = &Input(frame->quantity);
  frame.reset();
  EXPECT_EQ(view->Frame(), nullptr);
  QTest::keyClicks(box, "12");
  QTest::keyClick(box, Qt::Key_Up);
  QTest::keyClick(box, Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_TRUE(ui_driver::DifferencesOf(*view).isEmpty());
}

TEST_F(TShownForm, AFormMayGoInTheMiddleOfItsOwnButton) {
  frame->button.OnClick = [this] { frame.reset(); };
  QTest::mouseClick(&Input(frame->button), Qt::LeftButton);
  QApplication::processEvents();
  EXPECT_EQ(view->Frame(), nullptr);
}

}  // namespace
}  // namespace algo::terminal::render
