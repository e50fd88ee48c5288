#include "terminal/render/date_view.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QLocale>

#include "terminal/render/editor_line.h"

namespace algo::terminal::render {

namespace {

// As the editor writes it, whatever the desktop's locale.
const QString DayFormat = QStringLiteral("yyyy-MM-dd");
constexpr qsizetype DayLength = 10;

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
  if (!FInput.Focus(Control())) return;
  auto* calendar = new QCalendarWidget(&FContainer);
  calendar->setWindowFlag(Qt::Popup);
  calendar->setAttribute(Qt::WA_DeleteOnClose);
  calendar->setObjectName(QStringLiteral("calendar"));
  calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  const QDate day = QDate::fromString(FLine.text().left(DayLength), DayFormat);
  if (day.isValid()) calendar->setSelectedDate(day);
  QObject::connect(calendar, &QCalendarWidget::activated, &FContainer, [this, calendar](const QDate& picked) {
    TakeDay(picked);
    calendar->close();
  });
  QObject::connect(calendar, &QCalendarWidget::clicked, &FContainer, [this, calendar](const QDate& picked) {
    TakeDay(picked);
    calendar->close();
  });
  calendar->move(FContainer.mapToGlobal(QPoint(0, FContainer.height())));
  calendar->show();
  calendar->setFocus();
}

void TDateView::TakeDay(const QDate& day) {
  if (!FInput.Frame()) return;
  const auto& editor = static_cast<const forms::TDateEdit&>(Control());
  QString text = QLocale::c().toString(day, DayFormat);
  const QString time = FLine.text().mid(DayLength);
  text += editor.PickKeepsTime() && !time.isEmpty() ? time : QStringLiteral(" 00:00:00");
  FInput.Typed(Control(), text);
}

}  // namespace algo::terminal::render
