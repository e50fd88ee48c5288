#include "terminal/render/date_view.h"

#include <QCalendarWidget>
#include <QHBoxLayout>

#include "terminal/render/editor_line.h"

namespace algo::terminal::render {

namespace {

const QDate Epoch(1970, 1, 1);

QDate ToCalendar(std::chrono::local_days day) { return Epoch.addDays(day.time_since_epoch().count()); }

std::chrono::local_days FromCalendar(const QDate& day) {
  return std::chrono::local_days(std::chrono::days(Epoch.daysTo(day)));
}

}  // namespace

TDateView::TDateView(forms::TDateEdit& control, const TFrameInput& input, QWidget& parent)
    : TControlView(control),
      FInput(input),
      FContainer(*new QWidget(&parent)),
      FLine(*new QLineEdit(&FContainer)),
      FButton(*new QToolButton(&FContainer)) {
  auto* row = new QHBoxLayout(&FContainer);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(1);
  row->addWidget(&FLine, 1);
  row->addWidget(&FButton);
  FContainer.setFocusProxy(&FLine);
  // A truncated date is worse than none.
  const int text = FLine.fontMetrics().horizontalAdvance(QStringLiteral("8888-88-88 88:88:88"));
  constexpr int Rim = 14;
  FLine.setMinimumWidth(text + Rim);
  BindLine(FLine, control, input);
  FButton.setArrowType(Qt::DownArrow);
  FButton.setFocusPolicy(Qt::NoFocus);
  FLine.setObjectName(ToQt(control.Name() + "Line"));
  FButton.setObjectName(ToQt(control.Name() + "Calendar"));
  QObject::connect(&FButton, &QToolButton::clicked, &FContainer, [this] { OpenCalendar(); });
}

void TDateView::Show() {
  const auto& editor = static_cast<const forms::TEditor&>(Control());
  ShowInLine(FLine, editor);
  FButton.setEnabled(!editor.ReadOnly());
  FButton.setAccessibleName(FLine.accessibleName());
}

void TDateView::OpenCalendar() {
  if (!FInput.Focus(Control(), forms::TFocusCause::Other)) return;
  auto* calendar = new QCalendarWidget(&FContainer);
  calendar->setWindowFlag(Qt::Popup);
  calendar->setAttribute(Qt::WA_DeleteOnClose);
  calendar->setObjectName(QStringLiteral("calendar"));
  calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  const auto entered = static_cast<const forms::TDateEdit&>(Control()).EnteredValue();
  if (entered) calendar->setSelectedDate(ToCalendar(std::chrono::floor<std::chrono::days>(*entered)));
  // The calendar may outlive this view, which goes with the frame.
  const auto pick = [&input = FInput, &control = Control(), calendar](const QDate& picked) {
    input.PickDay(control, FromCalendar(picked));
    calendar->close();
  };
  QObject::connect(calendar, &QCalendarWidget::activated, &FContainer, pick);
  QObject::connect(calendar, &QCalendarWidget::clicked, &FContainer, pick);
  calendar->move(FContainer.mapToGlobal(QPoint(0, FContainer.height())));
  calendar->show();
  calendar->setFocus();
}

}  // namespace algo::terminal::render
