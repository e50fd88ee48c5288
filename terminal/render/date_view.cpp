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
      FWhole(*new QWidget(&parent)),
      FLine(*new QLineEdit(&FWhole)),
      FButton(*new QToolButton(&FWhole)) {
  auto* row = new QHBoxLayout(&FWhole);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(1);
  row->addWidget(&FLine, 1);
  row->addWidget(&FButton);
  FWhole.setFocusProxy(&FLine);
  // A date that is cut off is worse than none.
  const int text = FLine.fontMetrics().horizontalAdvance(QStringLiteral("8888-88-88 88:88:88"));
  constexpr int Rim = 14;
  FLine.setMinimumWidth(text + Rim);
  BindLine(FLine, control, input);
  FButton.setArrowType(Qt::DownArrow);
  FButton.setFocusPolicy(Qt::NoFocus);
  FLine.setObjectName(ToQt(control.Name() + "Line"));
  FButton.setObjectName(ToQt(control.Name() + "Calendar"));
  QObject::connect(&FButton, &QToolButton::clicked, &FWhole, [this] { OpenCalendar(); });
}

void TDateView::Show() {
  const auto& editor = static_cast<const forms::TEditor&>(Control());
  ShowInLine(FLine, editor);
  FButton.setEnabled(!editor.ReadOnly());
  FButton.setAccessibleName(FLine.accessibleName());
}

void TDateView::OpenCalendar() {
  if (!FInput.Focus(Control())) return;
  auto* calendar = new QCalendarWidget(&FWhole);
  calendar->setWindowFlag(Qt::Popup);
  calendar->setAttribute(Qt::WA_DeleteOnClose);
  calendar->setObjectName(QStringLiteral("calendar"));
  calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  const QDate day = QDate::fromString(FLine.text().left(DayLength), DayFormat);
  if (day.isValid()) calendar->setSelectedDate(day);
  QObject::connect(calendar, &QCalendarWidget::activated, &FWhole, [this, calendar](const QDate& picked) {
    TakeDay(picked);
    calendar->close();
  });
  QObject::connect(calendar, &QCalendarWidget::clicked, &FWhole, [this, calendar](const QDate& picked) {
    TakeDay(picked);
    calendar->close();
  });
  calendar->move(FWhole.mapToGlobal(QPoint(0, FWhole.height())));
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
