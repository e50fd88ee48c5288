#pragma once

// What the form model asks of the toolkit that draws it. A host that draws installs its own; without one,
// fixed figures hold, which make every size reproducible in a host without a screen.

#include <chrono>
#include <cstdint>
#include <string_view>

#include "forms/export.h"

namespace algo::forms {

/// A width and a height in pixels of the unscaled form.
struct TSize {
  double width = 0;
  double height = 0;

  bool operator==(const TSize&) const = default;
};

/// A font as far as a form chooses it: the size in points and whether it is bold.
struct TFont {
  std::int32_t size = 8;
  bool bold = false;

  bool operator==(const TFont&) const = default;
};

class ALGO_SHARED TToolkit {
 public:
  virtual ~TToolkit();

  /// The room that `text` (UTF-8) takes in `font` on one line. The fixed figures are 0.6 times the font size
  /// per character and 1.2 times the font size in height.
  virtual TSize MeasureText(std::string_view text, const TFont& font) const;

  /// Today, which a lone time that is typed belongs to. Without a toolkit it is always the same day,
  /// 2024-01-15.
  virtual std::chrono::local_days Today() const;

  /// The toolkit in use: the installed one, else the fixed figures.
  static const TToolkit& Current();

  /// Installs `toolkit`, which must outlive its use; nullptr goes back to the fixed figures.
  static void Install(const TToolkit* toolkit);
};

}  // namespace algo::forms
