#pragma once

// Texts in the user's language. A module holds no user-visible text of its own; it asks for each by id.

#include <cstdint>
#include <string>
#include <string_view>

#include "plugin/host_contract/service.h"

namespace algo::host {

/// The tag of the resource texts (captions, hints, messages).
inline constexpr std::string_view Const_ResourceStringTag = "Res";
/// The tag of the exchanges' display names; the id is the exchange code.
inline constexpr std::string_view ExchangeTag = "Exchange";

class ALGO_SHARED TCustomLanguageManager : public THostService<TCustomLanguageManager> {
 public:
  virtual ~TCustomLanguageManager();

  /// The text of `id` under `tag`. What an unknown id gives is the host's choice: commonly the id itself for
  /// resource texts, and nothing for names. The module always passes 3, 0, 0 as the trailing arguments, which
  /// stand for the current language and no variant.
  /// [module → host, while a provider lives]
  virtual std::string GetText(std::string_view tag, std::string_view id, std::int32_t language,
                              std::int32_t variant, std::int32_t options) = 0;
};

/// The resource text of that id, in the user's language.
/// [module → host, while a provider lives]
ALGO_SHARED std::string ResourceText(std::string_view id);

}  // namespace algo::host
