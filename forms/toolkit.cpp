#include "forms/toolkit.h"

#include <algorithm>

namespace algo::forms {

namespace {

const TToolkit* installed = nullptr;

// UTF-8 continuation bytes (10xxxxxx) belong to the character before them.
bool StartsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

}  // namespace

TToolkit::~TToolkit() = default;

TSize TToolkit::MeasureText(std::string_view text, const TFont& font) const {
  const auto characters = static_cast<double>(std::count_if(text.begin(), text.end(), StartsCharacter));
  return {0.6 * font.size * characters, 1.2 * font.size};
}

std::chrono::local_days TToolkit::Today() const {
  return std::chrono::local_days{std::chrono::year(2024) / 1 / 15};
}

const TToolkit& TToolkit::Current() {
  static const TToolkit fixedFigures;
  return installed != nullptr ? *installed : fixedFigures;
}

void TToolkit::Install(const TToolkit* toolkit) { installed = toolkit; }

}  // namespace algo::forms
