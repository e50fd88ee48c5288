// Editors at the screen: what is typed, stepped, picked from a calendar or from a list of matches.

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCalendarWidget>
#include <QCompleter>
#include <QLineEdit>
#include <QToolButton>
#include <QWheelEvent>

#include "tests/terminal/render/rendered_form.h"

namespace algo::terminal::render {
namespace {

using TEditors = TRenderedForm;

void Wheel(QWidget& widget, int notches) {
  constexpr int Notch = 120;
  const QPointF middle(widget.rect().center());
  QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, notches * Notch}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &event);
}

TEST_F(TEditors, ANumberStaysAsTypedUntilItIsLeft) {
  frame->quantity.SetMax(500);
  frame->quantity.SetFormat({.grouped = true});
  Type(frame->quantity, "1234");
  EXPECT_EQ(Shown(frame->quantity), "1234");
  EXPECT_EQ(frame->quantity.Value(), std::nullopt);
  Leave();
  EXPECT_EQ(frame->quantity.Value(), 500);
  EXPECT_EQ(Shown(frame->quantity), "500");
}

TEST_F(TEditors, ANumberMayBeEmptyAgain) {
  frame->quantity.SetValue(1200);
  GoTo(frame->quantity);
  QTest::keyClick(&Input(frame->quantity), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&Input(frame->quantity), Qt::Key_Delete);
  Leave();
  EXPECT_EQ(frame->quantity.Value(), std::nullopt);
  EXPECT_EQ(Shown(frame->quantity), "");
}

TEST_F(TEditors, KeysThatANumberDoesNotAcceptAreRefusedAtTheCaret) {
  frame->quantity.SetFormat({.whole = true});
  frame->quantity.SetMin(0);
  Type(frame->quantity, "-1x2.3");
  EXPECT_EQ(Shown(frame->quantity), "123");
}

TEST_F(TEditors, KeysGoInWhereTheCaretStands) {
  Type(frame->quantity, "14");
  QTest::keyClick(&Input(frame->quantity), Qt::Key_Left);
  QTest::keyClicks(&Input(frame->quantity), "23");
  EXPECT_EQ(frame->quantity.Text(), "1234");
  QTest::keyClick(&Input(frame->quantity), Qt::Key_Backspace);
  EXPECT_EQ(frame->quantity.Text(), "124");
}

TEST_F(TEditors, ArrowKeysStepAsTheFormSays) {
  frame->quantity.SetValue(100);
  GoTo(frame->quantity);
  QTest::keyClick(&Input(frame->quantity), Qt::Key_Up);
  EXPECT_EQ(Shown(frame->quantity), "105");
  QTest::keyClick(&Input(frame->quantity), Qt::Key_Down);
  QTest::keyClick(&Input(frame->quantity), Qt::Key_Down);
  EXPECT_EQ(Shown(frame->quantity), "95");
  EXPECT_EQ(frame->quantity.Value(), 100);
  Leave();
  EXPECT_EQ(frame->quantity.Value(), 95);
}

TEST_F(TEditors, StepsStopAtTheBounds) {
  frame->quantity.SetMin(0);
  frame->quantity.SetMax(7);
  GoTo(frame->quantity);
  QTest::keyClick(&Input(frame->quantity), Qt::Key_Up);
  QTest::keyClick(&Input(frame->quantity), Qt::Key_Up);
  EXPECT_EQ(Shown(frame->quantity), "7");
  QTest::keyClick(&Input(frame->quantity), Qt::Key_PageDown);
  EXPECT_EQ(Shown(frame->quantity), "0");
}

TEST_F(TEditors, TheWheelStepsTheFieldThatHasTheFocusAndNoOther) {
  frame->quantity.SetValue(10);
  Wheel(Input(frame->quantity), 1);
  EXPECT_EQ(Shown(frame->quantity), "10");
  GoTo(frame->quantity);
  Wheel(Input(frame->quantity), 1);
  EXPECT_EQ(Shown(frame->quantity), "15");
}

TEST_F(TEditors, AReadOnlyNumberIsNotStepped) {
  frame->quantity.SetValue(10);
  frame->quantity.SetReadOnly(true);
  GoTo(frame->quantity);
  QTest::keyClick(&Input(frame->quantity), Qt::Key_Up);
  QTest::keyClicks(&Input(frame->quantity), "9");
  Wheel(Input(frame->quantity), 1);
  EXPECT_EQ(Shown(frame->quantity), "10");
}

TEST_F(TEditors, AClickSelectsWhereTheFormSaysSo) {
  frame->quantity.SetValue(80);
  auto& line = *Input(frame->quantity).findChild<QLineEdit*>();
  QTest::mouseClick(&line, Qt::LeftButton);
  EXPECT_EQ(line.selectedText(), "");
  frame->quantity.OnClick = [this] { frame->quantity.SelectAll(); };
  QTest::mouseClick(&line, Qt::LeftButton);
  EXPECT_EQ(line.selectedText(), "80");
  QTest::keyClicks(&Input(frame->quantity), "9");
  EXPECT_EQ(Shown(frame->quantity), "9");
}

TEST_F(TEditors, TabSelectsTheTextAsTheFormSays) {
  frame->quantity.SetValue(80);
  frame->account.SetText("A-1");
  auto& line = *Input(frame->quantity).findChild<QLineEdit*>();
  GoTo(frame->account);
  QTest::keyClick(&Input(frame->account), Qt::Key_Tab);
  EXPECT_EQ(frame->quantity.SelectedText(), "80");
  EXPECT_EQ(line.selectedText(), "80");
  QTest::keyClick(&Input(frame->quantity), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(qobject_cast<QLineEdit*>(&Input(frame->account))->selectedText(), "A-1");
  EXPECT_EQ(line.selectedText(), "");
}

TEST_F(TEditors, EnterSelectsNothing) {
  frame->quantity.SetValue(80);
  frame->account.OnEnterKey = [this] { frame->SetFocus(&frame->quantity); };
  GoTo(frame->account);
  QTest::keyClick(&Input(frame->account), Qt::Key_Return);
  EXPECT_TRUE(Input(frame->quantity).hasFocus());
  EXPECT_EQ(Input(frame->quantity).findChild<QLineEdit*>()->selectedText(), "");
}

TEST_F(TEditors, WhatAKeyDeselectedStaysSoWhenTheFieldIsShownAnew) {
  frame->quantity.SetValue(80);
  auto& line = *Input(frame->quantity).findChild<QLineEdit*>();
  GoTo(frame->quantity);
  ASSERT_EQ(line.selectedText(), "80");
  QTest::keyClick(&Input(frame->quantity), Qt::Key_End);
  frame->quantity.SetHint("of the day");
  EXPECT_EQ(line.selectedText(), "");
  QTest::keyClicks(&Input(frame->quantity), "5");
  EXPECT_EQ(frame->quantity.Text(), "805");
}

TEST_F(TEditors, AStepIsSelected) {
  frame->quantity.SetValue(80);
  GoTo(frame->quantity);
  QTest::keyClick(&Input(frame->quantity), Qt::Key_Up);
  EXPECT_EQ(Input(frame->quantity).findChild<QLineEdit*>()->selectedText(), "85");
  QTest::keyClicks(&Input(frame->quantity), "9");
  EXPECT_EQ(Shown(frame->quantity), "9");
}

TEST_F(TEditors, ADateIsTypedOrEmptied) {
  Type(frame->start, "2026-11-20 09:30:00");
  Leave();
  ASSERT_TRUE(frame->start.Value());
  EXPECT_EQ(frame->start.Text(), "2026-11-20 09:30:00");
  GoTo(frame->start);
  QTest::keyClick(&Input(frame->start), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&Input(frame->start), Qt::Key_Backspace);
  Leave();
  EXPECT_EQ(frame->start.Value(), std::nullopt);
}

struct TCalendar : TRenderedForm {
  /// Opens the calendar by its button; nullptr if none opened.
  QCalendarWidget* Open() {
    QTest::mouseClick(view->findChild<QToolButton*>("deStartCalendar"), Qt::LeftButton);
    return view->findChild<QCalendarWidget*>("calendar");
  }
};

TEST_F(TCalendar, ADayIsPickedAtMidnight) {
  frame->start.SetText("2026-11-20 09:30:15");
  QCalendarWidget* calendar = Open();
  ASSERT_NE(calendar, nullptr);
  EXPECT_EQ(calendar->selectedDate(), QDate(2026, 11, 20));
  calendar->setSelectedDate(QDate(2026, 11, 23));
  QTest::keyClick(calendar->findChild<QAbstractItemView*>(), Qt::Key_Return);
  Leave();
  EXPECT_EQ(frame->start.Text(), "2026-11-23 00:00:00");
}

TEST_F(TCalendar, ADayKeepsTheTimeWhereTheFieldKeepsIt) {
  frame->start.SetPickKeepsTime(true);
  frame->start.SetText("2026-11-20 09:30:15");
  QCalendarWidget* calendar = Open();
  ASSERT_NE(calendar, nullptr);
  calendar->setSelectedDate(QDate(2026, 11, 24));
  QTest::keyClick(calendar->findChild<QAbstractItemView*>(), Qt::Key_Return);
  Leave();
  EXPECT_EQ(frame->start.Text(), "2026-11-24 09:30:15");
}

TEST_F(TCalendar, ItMayOutliveTheForm) {
  QCalendarWidget* calendar = Open();
  ASSERT_NE(calendar, nullptr);
  frame.reset();
  QTest::keyClick(calendar->findChild<QAbstractItemView*>(), Qt::Key_Return);
  EXPECT_EQ(view->Frame(), nullptr);
}

TEST_F(TCalendar, ADisabledFieldOpensNone) {
  frame->start.SetEnabled(false);
  EXPECT_EQ(Open(), nullptr);
}

struct TMatches : TRenderedForm {
  QAbstractItemView& List() const {
    const auto* line = qobject_cast<QLineEdit*>(&Input(frame->account));
    auto* completer = qobject_cast<QCompleter*>(line->property("completer").value<QObject*>());
    return *completer->popup();
  }
};

TEST_F(TMatches, AreOfferedBelowTheLineAndPickedByKey) {
  Type(frame->account, "A-");
  ASSERT_TRUE(List().isVisible());
  EXPECT_EQ(List().model()->rowCount(), 2);
  EXPECT_EQ(List().model()->index(0, 0).data().toString(), "A-1001   Main account");
  QTest::keyClick(&List(), Qt::Key_Down);
  QTest::keyClick(&List(), Qt::Key_Down);
  QTest::keyClick(&List(), Qt::Key_Return);
  EXPECT_FALSE(List().isVisible());
  EXPECT_EQ(frame->account.Text(), "A-1002");
  EXPECT_TRUE(frame->account.Focused());
}

TEST_F(TMatches, EnterWithoutAPickMovesOnAtOnce) {
  frame->account.OnEnterKey = [this] { frame->SetFocus(&frame->quantity); };
  Type(frame->account, "A-");
  ASSERT_TRUE(List().isVisible());
  QTest::keyClick(&List(), Qt::Key_Return);
  EXPECT_FALSE(List().isVisible());
  EXPECT_TRUE(frame->quantity.Focused());
  EXPECT_EQ(frame->account.Text(), "A-");
}

TEST_F(TMatches, AreNotOfferedForWhatIsTypedInFull) {
  Type(frame->account, "A-1001");
  EXPECT_FALSE(List().isVisible());
}

}  // namespace
}  // namespace algo::terminal::render
