#include "terminal/desk/frames/view_picture.h"

#include <QImage>
#include <QPixmap>
#include <cstddef>
#include <cstdint>

#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::frames {

QIcon IconOf(const host::TImage& image) {
  if (image.width <= 0 || image.height <= 0) return {};
  if (image.pixels.size() / static_cast<std::size_t>(image.width) != static_cast<std::size_t>(image.height) ||
      image.pixels.size() % static_cast<std::size_t>(image.width) != 0) {
    return {};
  }
  // The pixmap has a copy of the pixels.
  const QImage pixels(reinterpret_cast<const uchar*>(image.pixels.data()), image.width, image.height,
                      static_cast<qsizetype>(image.width) * static_cast<qsizetype>(sizeof(std::uint32_t)),
                      QImage::Format_ARGB32);
  return QPixmap::fromImage(pixels);
}

std::vector<panels::TTitleButton> TitleButtonsOf(const std::vector<host::TCaptionButton>& buttons,
                                                 const std::vector<host::TImage>& images) {
  std::vector<panels::TTitleButton> shown;
  for (const host::TCaptionButton& button : buttons) {
    const auto place = static_cast<std::size_t>(button.image);
    const bool pictured = button.image >= 0 && place < images.size();
    shown.push_back({button.id, render::ToQt(button.hint), pictured ? IconOf(images[place]) : QIcon()});
  }
  return shown;
}

}  // namespace algo::terminal::desk::frames
