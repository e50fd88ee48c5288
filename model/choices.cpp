#include "model/choices.h"

#include "text/number_text.h"

namespace algo::model {

namespace {

constexpr std::array<std::string_view, 2> OpenCloseTexts{"0", "1"};
constexpr std::array<std::string_view, 3> FuncTexts{"0", "1", "2"};
constexpr std::array<std::string_view, 3> StyleTexts{"3", "5", "1"};
constexpr std::array<std::string_view, 17> RefTexts{"1",  "2",  "3",  "4",  "5",  "8",  "9",  "10", "11",
                                                    "13", "14", "15", "16", "17", "18", "19", "20"};
constexpr std::array<std::string_view, 2> AccuVolTexts{"N", "Y"};

static_assert(OpenCloseTexts.size() + 1 == OpenCloseList.size());
static_assert(FuncTexts.size() + 1 == FuncList.size());
static_assert(StyleTexts.size() + 1 == StyleList.size());
static_assert(RefTexts.size() + 1 == RefList.size() && RefValues.size() == RefTexts.size());
static_assert(AccuVolTexts.size() + 1 == OpenCloseList.size());

}  // namespace

constexpr TChoiceCode OpenCloseCode{OpenCloseTexts};
constexpr TChoiceCode FuncCode{FuncTexts};
constexpr TChoiceCode StyleCode{StyleTexts};
constexpr TChoiceCode RefCode{RefTexts};
constexpr TChoiceCode AccuVolCode{AccuVolTexts};

std::string_view ChoiceText(const TChoiceCode& code, std::int32_t index) {
  const bool written = index >= 0 && static_cast<std::size_t>(index) < code.texts.size();
  return written ? code.texts[static_cast<std::size_t>(index)] : std::string_view();
}

std::optional<std::int32_t> ChoiceIndex(const TChoiceCode& code, std::string_view text) {
  const auto number = text::ParseWhole(text);
  for (std::size_t i = 0; i < code.texts.size(); ++i) {
    if (code.texts[i] == text || (number && number == text::ParseWhole(code.texts[i]))) {
      return static_cast<std::int32_t>(i);
    }
  }
  return std::nullopt;
}

}  // namespace algo::model
