#include "terminal/render/qt_toolkit.h"

#include <QApplication>
#include <QFontMetricsF>

#include "terminal/render/qt_text.h"

namespace algo::terminal::render {

QFont DesktopFont(const forms::TFont& font) {
  QFont chosen = QApplication::font();
  // The model's figures are those of a dense form; what counts on a desktop is the proportion.
  chosen.setPointSizeF(chosen.pointSizeF() * font.size / forms::TFont{}.size);
  chosen.setBold(font.bold);
  return chosen;
}

forms::TSize TQtToolkit::MeasureText(std::string_view text, const forms::TFont& font) const {
  // A form that looks for the size that fits asks for many; each would have a font loaded that nobody draws
  // with.
  constexpr std::int32_t Unchosen = forms::TFont{}.size;
  const QFontMetricsF metrics(DesktopFont({.size = Unchosen, .bold = font.bold}));
  const double scale = static_cast<double>(font.size) / Unchosen;
  return {metrics.horizontalAdvance(ToQt(text)) * scale, metrics.height() * scale};
}

}  // namespace algo::terminal::render
