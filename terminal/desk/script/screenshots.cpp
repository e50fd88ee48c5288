#include "terminal/desk/script/screenshots.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QRegularExpression>

#include "terminal/render/qt_text.h"
#include "text/errors.h"

namespace algo::terminal::desk::script {

namespace {

constexpr int TitleHeight = 24;

/// Paints a window in front with a title bar, which an unseen screen does not draw.
void PaintFront(QPainter& painter, QWidget& front, const QPoint& at) {
  const QPixmap picture = front.grab();
  const QSize size = picture.deviceIndependentSize().toSize();
  const bool titled = !front.windowTitle().isEmpty();
  const QRect title(at.x(), at.y() - TitleHeight, size.width(), TitleHeight);
  painter.drawPixmap(at, picture);
  painter.setPen(front.palette().color(QPalette::Mid));
  if (titled) {
    painter.fillRect(title, front.palette().highlight());
    painter.setPen(front.palette().color(QPalette::HighlightedText));
    painter.drawText(title.adjusted(TitleHeight / 4, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                     front.windowTitle());
    painter.setPen(front.palette().color(QPalette::Highlight));
  }
  painter.drawRect(QRect(at, size).adjusted(0, titled ? -TitleHeight : 0, -1, -1));
}

}  // namespace

TScreenshots::TScreenshots(const QString& folder) : FFolder(folder) {
  if (!folder.isEmpty() && !QDir().mkpath(folder)) {
    throw EError("the folder '" + render::FromQt(folder) +
                 "' cannot be made; name one in which you may write");
  }
}

QString TScreenshots::Take(const QWidget& window, const QString& what) {
  if (FFolder.isEmpty()) return {};
  QPixmap picture = const_cast<QWidget&>(window).grab();
  QPainter painter(&picture);
  for (QWidget* front : QApplication::topLevelWidgets()) {
    if (front == &window || !front->isVisible()) continue;
    const QPoint room(window.width() - front->width(), window.height() - front->height());
    const QPoint at = front->geometry().topLeft() - window.geometry().topLeft();
    // A window beside the main window is moved into the picture.
    PaintFront(
        painter, *front,
        {qBound(0, at.x(), qMax(0, room.x())), qBound(TitleHeight, at.y(), qMax(TitleHeight, room.y()))});
  }
  painter.end();
  QString words =
      what.toLower().replace(QRegularExpression(QStringLiteral("[^a-z0-9]+")), QStringLiteral("-"));
  while (words.startsWith('-')) words.remove(0, 1);
  while (words.endsWith('-')) words.chop(1);
  QString name = QStringLiteral("%1-%2.png").arg(++FCount, 2, 10, QLatin1Char('0')).arg(words);
  if (!picture.save(QDir(FFolder).filePath(name))) {
    throw EError("'" + render::FromQt(QDir(FFolder).filePath(name)) + "' cannot be written");
  }
  return name;
}

}  // namespace algo::terminal::desk::script
