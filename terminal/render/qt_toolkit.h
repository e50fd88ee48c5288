#pragma once

// The desktop's fonts, and text measured in them for the form model.

#include <QFont>
#include <string_view>

#include "forms/toolkit.h"

namespace algo::terminal::render {

/// The desktop's font for a font of the form model. The model's default font, size 8, is the application's
/// own; others are scaled in proportion.
QFont DesktopFont(const forms::TFont& font);

/// The application's own font as the form model names it: what has this font is drawn in the application's.
forms::TFont FormFont();

/// To be installed with forms::TToolkit::Install once there is an application object.
class TQtToolkit final : public forms::TToolkit {
 public:
  forms::TSize MeasureText(std::string_view text, const forms::TFont& font) const override;
  std::chrono::local_days Today() const override;
};

}  // namespace algo::terminal::render
