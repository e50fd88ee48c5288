#include "terminal/render/qt_toolkit.h"

#include <QApplication>
#include <QFontMetricsF>

#include "terminal/render/qt_text.h"

namespace algo::terminal {

QFont DesktopFont(const forms::TFont& font) {
  QFont chosen = QApplication::font();
  // The model's figures are those of a dense form; what counts on a desktop is the proportion.
  chosen.setPointSizeF(chosen.pointSizeF() * font.size / forms::TFont{}.size);
  chosen.setBold(font.bold);
  return chosen;
}

forms::TSize TQtToolkit::MeasureText(std::string_view text, const forms::TFont& font) const {
  const QFontMetricsF metrics(DesktopFont(font));
  return {metrics.horizontalAdvance(ToQt(text)), metrics.height()};
}

}  // namespace algo::terminal
