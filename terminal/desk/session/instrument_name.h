#pragma once

// The names of the paper market's instruments and exchanges in the language of the desktop.

#include <string>

#include "terminal/desk/appearance/texts.h"
#include "terminal/paper/market_tables.h"

namespace algo::terminal::desk {

/// The name in that language.
inline const std::string& NameIn(appearance::TLanguage language, const paper::TPaperName& name) {
  switch (language) {
    case appearance::TLanguage::TraditionalChinese:
      return name.traditional;
    case appearance::TLanguage::SimplifiedChinese:
      return name.simplified;
    case appearance::TLanguage::English:
      break;
  }
  return name.english;
}

}  // namespace algo::terminal::desk
