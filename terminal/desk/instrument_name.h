#pragma once

// The names of the paper market's instruments and exchanges in the language of the desktop.

#include <string>

#include "terminal/desk/texts.h"
#include "terminal/paper/market_tables.h"

namespace algo::terminal {

inline const std::string& NameIn(TLanguage language, const TPaperName& name) {
  switch (language) {
    case TLanguage::TraditionalChinese:
      return name.traditional;
    case TLanguage::SimplifiedChinese:
      return name.simplified;
    case TLanguage::English:
      break;
  }
  return name.english;
}

}  // namespace algo::terminal
