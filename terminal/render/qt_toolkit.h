#pragma once

// Fonts as the desktop has them, and the form model's text sizes measured in them.

#include <QFont>
#include <string_view>

#include "forms/toolkit.h"

namespace algo::terminal::render {

/// The desktop's font for a font of the form model. The model's unchosen font, size 8, is the application's
/// own; others keep their proportion to it.
QFont DesktopFont(const forms::TFont& font);

/// Install it with forms::TToolkit::Install once there is an application object.
class TQtToolkit final : public forms::TToolkit {
 public:
  forms::TSize MeasureText(std::string_view text, const forms::TFont& font) const override;
};

}  // namespace algo::terminal::render
