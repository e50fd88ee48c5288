#pragma once

// All texts that the trader reads, in one language at a time: those that the module asks its host for, and
// the desktop's own. Each language has one file (texts/), which is built into the program; a new text is
// added to each of the files.

#include <QString>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "terminal/host/host_data.h"

namespace algo::terminal::desk::appearance {

/// The languages, by the numbers under which hosts pass them on.
enum class TLanguage : std::int32_t { English = 1, TraditionalChinese = 2, SimplifiedChinese = 3 };

inline constexpr std::array Languages{TLanguage::English, TLanguage::TraditionalChinese,
                                      TLanguage::SimplifiedChinese};

/// The name of the language in settings and on the command line: "en", "zh_Hant" or "zh_Hans".
std::string_view LanguageCode(TLanguage language);

/// The language of that name; nothing for any other text. Upper and lower case differ.
std::optional<TLanguage> LanguageOfCode(std::string_view code);

/// What the language calls itself, whatever language shows now.
QString LanguageOwnName(TLanguage language);

class TTexts {
 public:
  /// Reads the texts of the language.
  explicit TTexts(TLanguage language);

  TLanguage Language() const { return FLanguage; }

  /// The module's text of that resource id ("Res_…"); the id itself when there is none.
  std::string Resource(std::string_view id) const;

  /// The desktop's own text. Its key is the English text, but for explanations and for words that need two
  /// translations ("Order" and "Order number"); the key itself when there is no text. `&` marks the letter
  /// that opens a menu.
  QString Desk(std::string_view key) const;

  /// What the message box says for a host error code; the code itself when it is not known.
  std::string ErrorText(std::string_view code) const;

  /// Replaces the resource texts and the names of the exchanges in the data; with no effect on texts under
  /// other tags.
  void FillInto(THostData& data) const;

 private:
  TLanguage FLanguage;
  TTextTable FResources;
  TTextTable FErrors;
  TTextTable FExchanges;
  TTextTable FDesk;
};

}  // namespace algo::terminal::desk::appearance
