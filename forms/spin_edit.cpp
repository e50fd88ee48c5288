#include "forms/spin_edit.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "text/number_text.h"
#include "text/text.h"

namespace algo::forms {

namespace {

// Steps of a hundredth add up to numbers that a double shows with a tail of its own.
constexpr std::int32_t StepDecimals = 7;

std::string WithoutSeparators(std::string_view text) {
  std::string digits(text);
  std::erase(digits, ',');
  return digits;
}

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

std::string TSpinEdit::Text() const {
  if (FTyped) return *FTyped;
  if (!FValue) return {};
  if (FFormat.grouped) return text::GroupedNumber(*FValue, FFormat.decimals);
  return text::PlainNumber(*FValue);
}

void TSpinEdit::SetText(std::string_view text) {
  const std::string digits = WithoutSeparators(text::Trim(text));
  if (digits.empty()) {
    SetValue(std::nullopt);
  } else if (const auto number = text::ParseNumber(digits)) {
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
  const std::string digits = WithoutSeparators(*FTyped);
  if (digits.empty()) return std::nullopt;
  const auto typed = text::ParseNumber(digits);
  return typed ? typed : FValue;
}

void TSpinEdit::TakeUp() {
  if (!FTyped) return;
  const auto typed = text::ParseNumber(WithoutSeparators(*FTyped));
  SetValue(typed ? HeldToBounds(*typed) : EnteredValue());
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
