#include "terminal/ui_driver/widget_input_player.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>

#include "forms/choices.h"
#include "terminal/drive/json.h"
#include "terminal/render/qt_text.h"
#include "terminal/ui_driver/differences.h"

namespace algo::terminal::ui_driver {

using forms::TInputResult;

namespace {

QWidget& InputOf(render::TFrameView& view, const forms::TControl& control) {
  return view.Find(control)->Input();
}

/// Where a click hits the control; a check box reacts on its indicator alone.
QPoint ClickPoint(const QWidget& widget, forms::TControlKind kind) {
  if (kind != forms::TControlKind::Check) return widget.rect().center();
  QStyleOptionButton option;
  option.initFrom(&widget);
  return widget.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &widget).center();
}

/// Why a list or an editor would not take a change, or Taken if it may be tried.
TInputResult TakesChange(const forms::TFrame& frame, const forms::TControl& control) {
  const TInputResult result = frame.TakesInput(control);
  return result == TInputResult::Taken && control.ReadOnly() ? TInputResult::ReadOnly : result;
}

}  // namespace

template <class TAct>
TInputResult TWidgetInputPlayer::Replace(const TFramePointer& frame, forms::TControl& control, TAct&& act) {
  if (dynamic_cast<forms::TEditor*>(&control) == nullptr) return TInputResult::Unsuited;
  if (const auto result = TakesChange(*frame, control); result != TInputResult::Taken) return result;
  QWidget& input = InputOf(FWindows.ViewOf(frame), control);
  input.setFocus(Qt::TabFocusReason);
  if (const auto result = TakesChange(*frame, control); result != TInputResult::Taken) return result;
  QTest::keyClick(&input, Qt::Key_A, Qt::ControlModifier);
  act(input);
  return TInputResult::Taken;
}

TInputResult TWidgetInputPlayer::Type(const TFramePointer& frame, forms::TControl& control,
                                      std::string_view text) {
  return Replace(frame, control, [text](QWidget& input) {
    if (text.empty()) QTest::keyClick(&input, Qt::Key_Delete);
    for (const QChar key : render::ToQt(text)) {
      // Control characters are not text, and some of them are keys that do other things.
      if (key.category() == QChar::Other_Control) continue;
      QTest::sendKeyEvent(QTest::Click, &input, Qt::Key_unknown, QString(key), Qt::NoModifier);
    }
  });
}

TInputResult TWidgetInputPlayer::Paste(const TFramePointer& frame, forms::TControl& control,
                                       std::string_view text) {
  return Replace(frame, control, [text](QWidget& input) {
    QGuiApplication::clipboard()->setText(render::ToQt(text));
    QTest::keyClick(&input, Qt::Key_V, Qt::ControlModifier);
  });
}

TInputResult TWidgetInputPlayer::Enter(const TFramePointer& frame, forms::TControl& control) {
  if (const auto result = frame->TakesInput(control); result != TInputResult::Taken) return result;
  QWidget& input = InputOf(FWindows.ViewOf(frame), control);
  input.setFocus(Qt::TabFocusReason);
  if (const auto result = frame->TakesInput(control); result != TInputResult::Taken) return result;
  QTest::keyClick(&input, Qt::Key_Return);
  return TInputResult::Taken;
}

TInputResult TWidgetInputPlayer::Click(const TFramePointer& frame, forms::TControl& control) {
  if (const auto result = frame->TakesInput(control); result != TInputResult::Taken) return result;
  QWidget& input = InputOf(FWindows.ViewOf(frame), control);
  QTest::mouseClick(&input, Qt::LeftButton, Qt::NoModifier, ClickPoint(input, control.Kind()));
  if (frame.use_count() > 1) {
    // The click opened the list; nothing is picked from it.
    if (auto* list = qobject_cast<QComboBox*>(&input)) list->hidePopup();
  }
  return TInputResult::Taken;
}

TInputResult TWidgetInputPlayer::Pick(const TFramePointer& frame, forms::TControl& control,
                                      std::int32_t index) {
  const auto* combo = dynamic_cast<const forms::TComboBox*>(&control);
  if (combo == nullptr) return TInputResult::Unsuited;
  if (const auto result = TakesChange(*frame, control); result != TInputResult::Taken) return result;
  if (index < 0 || index >= combo->Count()) return TInputResult::OutOfRange;
  auto& list = static_cast<QComboBox&>(InputOf(FWindows.ViewOf(frame), control));
  list.setFocus(Qt::TabFocusReason);
  if (const auto result = TakesChange(*frame, control); result != TInputResult::Taken) return result;
  QTest::keyClick(&list, Qt::Key_F4);
  QAbstractItemView& rows = *list.view();
  QTest::keyClick(&rows, Qt::Key_Home);
  for (std::int32_t row = 0; row < index; ++row) QTest::keyClick(&rows, Qt::Key_Down);
  QTest::keyClick(&rows, Qt::Key_Return);
  return TInputResult::Taken;
}

void TWidgetInputPlayer::Leave(const TFramePointer& frame) {
  const render::TFrameView& view = FWindows.ViewOf(frame);
  QWidget& focusSink = FWindows.FocusSinkOf(view);
  QTest::mouseClick(&focusSink, Qt::LeftButton);
}

void TWidgetInputPlayer::Settle() {
  QApplication::processEvents();
  QStringList differences;
  for (const render::TFrameView* view : FWindows.Views()) differences += DifferencesOf(*view);
  if (!differences.isEmpty())
    throw drive::ECommandError(render::FromQt(differences.join(QStringLiteral("; "))));
}

}  // namespace algo::terminal::ui_driver
