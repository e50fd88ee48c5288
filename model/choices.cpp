#include "model/choices.h"

#include <algorithm>

#include "text/number_text.h"

namespace algo::model {

namespace {

constexpr bool OnlyTheLastIsNotWritten(TChoiceList choices) {
  return choices.back().code.empty() &&
         std::none_of(choices.begin(), choices.end() - 1,
                      [](const TChoiceItem& item) { return item.code.empty(); });
}

static_assert(OnlyTheLastIsNotWritten(OpenCloseChoices) && OnlyTheLastIsNotWritten(AccuVolChoices) &&
              OnlyTheLastIsNotWritten(FuncChoices) && OnlyTheLastIsNotWritten(StyleChoices) &&
              OnlyTheLastIsNotWritten(RefChoices));

}  // namespace

std::string_view ChoiceText(TChoiceList choices, std::int32_t index) {
  const bool inList = index >= 0 && static_cast<std::size_t>(index) < choices.size();
  return inList ? choices[static_cast<std::size_t>(index)].code : std::string_view();
}

std::optional<std::int32_t> ChoiceIndex(TChoiceList choices, std::string_view text) {
  const auto number = text::ParseWhole(text);
  for (std::size_t i = 0; i + 1 < choices.size(); ++i) {
    if (choices[i].code == text || (number && number == text::ParseWhole(choices[i].code))) {
      return static_cast<std::int32_t>(i);
    }
  }
  return std::nullopt;
}

}  // namespace algo::model
