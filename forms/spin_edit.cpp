#include "forms/spin_edit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "text/number_text.h"
#include "text/text.h"

namespace algo::forms {

namespace {

// Steps of a hundredth add up to numbers that a double shows with a tail of its own.
constexpr std::int32_t StepDecimals = 7;

constexpr bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// Whether every comma parts groups of exactly three digits before the point.
bool GroupsAreWhole(std::string_view text) {
  const std::string_view whole = text.substr(0, text.find('.'));
  if (text.substr(whole.size()).find(',') != std::string_view::npos) return false;
  std::size_t comma = whole.find(',');
  if (comma == std::string_view::npos) return true;
  const std::size_t sign = !whole.empty() && (whole[0] == '-' || whole[0] == '+') ? 1 : 0;
  if (comma == sign || comma > sign + 3) return false;
  for (; comma != std::string_view::npos; comma = whole.find(',', comma + 1)) {
    const std::string_view group = whole.substr(comma + 1, 3);
    const bool ends = comma + 4 >= whole.size() || whole[comma + 4] == ',';
    if (group.size() != 3 || !std::all_of(group.begin(), group.end(), IsDigit) || !ends) return false;
  }
  return true;
}

// The number that a text with thousands separators shows. "60,5" is none, so that it never becomes 605.
std::optional<double> NumberIn(std::string_view text) {
  if (!GroupsAreWhole(text)) return std::nullopt;
  std::string digits(text);
  std::erase(digits, ',');
  return text::ParseNumber(digits);
}

// What other keyboards, tables and web pages give in place of the ASCII characters of a number.
struct TLookalike {
  std::string_view utf8;
  char character;
};
constexpr std::array Lookalikes{
    TLookalike{"\u2212", '-'}, TLookalike{"\uff10", '0'}, TLookalike{"\uff11", '1'},
    TLookalike{"\uff12", '2'}, TLookalike{"\uff13", '3'}, TLookalike{"\uff14", '4'},
    TLookalike{"\uff15", '5'}, TLookalike{"\uff16", '6'}, TLookalike{"\uff17", '7'},
    TLookalike{"\uff18", '8'}, TLookalike{"\uff19", '9'}, TLookalike{"\uff0e", '.'},
    TLookalike{"\uff0c", ','}};

}  // namespace

TSpinEdit::TSpinEdit(TFrame& frame, std::string name) : TEditor(frame, std::move(name), TControlKind::Spin) {}

void TSpinEdit::SetValue(std::optional<double> value) {
  if (value && !std::isfinite(*value)) value.reset();
  const bool wasTyping = std::exchange(FTyped, std::nullopt).has_value();
  if (FValue == value) {
    if (wasTyping) AppearanceChanged();
    return;
  }
  FValue = value;
  ValueChanged();
}

std::string TSpinEdit::Text() const { return FTyped ? *FTyped : ValueText(); }

std::string TSpinEdit::ValueText() const {
  if (!FValue) return {};
  if (FFormat.grouped) return text::GroupedNumber(*FValue, FFormat.decimals);
  return text::PlainNumber(*FValue);
}

void TSpinEdit::SetText(std::string_view text) {
  const std::string_view shown = text::Trim(text);
  if (shown.empty()) {
    SetValue(std::nullopt);
  } else if (const auto number = NumberIn(shown)) {
    SetValue(number);
  } else {
    SetValue(FValue);
  }
}

void TSpinEdit::SetMin(std::optional<double> min) {
  FMin = min;
  AppearanceChanged();
}

void TSpinEdit::SetMax(std::optional<double> max) {
  FMax = max;
  AppearanceChanged();
}

void TSpinEdit::SetStep(double step) {
  FStep = step;
  AppearanceChanged();
}

void TSpinEdit::SetFormat(const TNumberFormat& format) {
  FFormat = format;
  AppearanceChanged();
}

std::string TSpinEdit::Normalized(std::string_view text) const {
  std::string ascii;
  ascii.reserve(text.size());
  while (!text.empty()) {
    const auto* found = std::find_if(Lookalikes.begin(), Lookalikes.end(),
                                     [text](const TLookalike& each) { return text.starts_with(each.utf8); });
    const bool known = found != Lookalikes.end();
    ascii += known ? found->character : text.front();
    text.remove_prefix(known ? found->utf8.size() : 1);
  }
  return ascii;
}

std::string TSpinEdit::Pasted(std::string_view text) const { return Normalized(text::Trim(text)); }

bool TSpinEdit::Accepts(std::string_view typed, char key) const {
  if ((key >= '0' && key <= '9') || key == ',') return true;
  if (key == '-') return typed.empty() && (!FMin || *FMin < 0);
  if (key == '.') return !FFormat.whole && typed.find('.') == std::string_view::npos;
  return false;
}

void TSpinEdit::SetTyped(std::string typed) {
  FTyped = std::move(typed);
  AppearanceChanged();
}

std::optional<double> TSpinEdit::EnteredValue() const {
  if (!FTyped) return FValue;
  if (FTyped->empty()) return std::nullopt;
  const auto typed = NumberIn(*FTyped);
  return typed ? typed : FValue;
}

void TSpinEdit::TakeUp() {
  if (!FTyped) return;
  const auto typed = NumberIn(*FTyped);
  SetValue(typed && FBendsTyped ? HeldToBounds(*typed) : EnteredValue());
}

double TSpinEdit::HeldToBounds(double value) const {
  if (FMax) value = std::min(value, *FMax);
  if (FMin) value = std::max(value, *FMin);
  return value;
}

double TSpinEdit::Stepped(double value, std::int32_t steps) const {
  return FStepGrid.Empty() ? value + steps * FStep : FStepGrid.Stepped(value, steps);
}

void TSpinEdit::StepBy(std::int32_t steps) {
  if (steps == 0) return;
  const double from = EnteredValue().value_or(0);
  const bool outside = HeldToBounds(from) != from;
  const double reached = HeldToBounds(outside ? from : Stepped(from, steps));
  // There is no number beyond the largest one.
  if (!std::isfinite(reached)) return;
  std::string text = text::GroupedNumber(reached, StepDecimals);
  if (!FFormat.grouped) std::erase(text, ',');
  SetTyped(std::move(text));
  SelectAll();
}

}  // namespace algo::forms
