#include "terminal/render/qt_toolkit.h"

#include <QApplication>
#include <QDate>
#include <QFontMetricsF>

#include "terminal/render/qt_text.h"

namespace algo::terminal::render {

QFont DesktopFont(const forms::TFont& font) {
  QFont chosen = QApplication::font();
  // The model's sizes are those of a dense form; on a desktop only the proportions count.
  chosen.setPointSizeF(chosen.pointSizeF() * font.size / forms::TFont{}.size);
  chosen.setBold(font.bold);
  return chosen;
}

forms::TFont FormFont() { return {.bold = QApplication::font().bold()}; }

forms::TSize TQtToolkit::MeasureText(std::string_view text, const forms::TFont& font) const {
  // Scaled, because a form that searches for a size that fits measures many, and each would load a font that
  // is never drawn.
  constexpr std::int32_t DefaultSize = forms::TFont{}.size;
  const QFontMetricsF metrics(DesktopFont({.size = DefaultSize, .bold = font.bold}));
  const double scale = static_cast<double>(font.size) / DefaultSize;
  return {metrics.horizontalAdvance(ToQt(text)) * scale, metrics.height() * scale};
}

std::chrono::local_days TQtToolkit::Today() const {
  const QDate today = QDate::currentDate();
  return std::chrono::local_days{std::chrono::year(today.year()) / today.month() / today.day()};
}

}  // namespace algo::terminal::render
