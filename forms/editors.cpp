#include "forms/editors.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "text/number_text.h"
#include "text/text.h"

namespace algo::forms {

namespace {

std::string WithoutSeparators(std::string_view text) {
  std::string digits(text);
  std::erase(digits, ',');
  return digits;
}

}  // namespace

TEditor::TEditor(TFrame& frame, std::string name, TControlKind kind)
    : TControl(frame, std::move(name), kind) {}

void TEditor::SetPlaceholder(std::string placeholder) {
  if (FPlaceholder == placeholder) return;
  FPlaceholder = std::move(placeholder);
  LooksChanged();
}

bool TEditor::AcceptsText(std::string_view text) const {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!Accepts(text.substr(0, i), text[i])) return false;
  }
  return true;
}

void TEditor::SelectAll() {
  FAllSelected = true;
  LooksChanged();
}

void TEditor::MoveCaretToEnd() {
  if (!FAllSelected) return;
  FAllSelected = false;
  LooksChanged();
}

std::string TEditor::SelectedText() const { return FAllSelected ? Text() : std::string(); }

TTextEdit::TTextEdit(TFrame& frame, std::string name) : TEditor(frame, std::move(name), TControlKind::Edit) {}

void TTextEdit::SetText(std::string_view text) {
  if (FText == text) return;
  FText = text;
  ValueChanged();
}

bool TTextEdit::Accepts(std::string_view /*typed*/, char key) const {
  return static_cast<unsigned char>(key) >= 0x20 && key != 0x7F;
}

void TTextEdit::SetTyped(std::string typed) { SetText(typed); }

TSpinEdit::TSpinEdit(TFrame& frame, std::string name) : TEditor(frame, std::move(name), TControlKind::Spin) {}

void TSpinEdit::SetValue(std::optional<double> value) {
  if (value && !std::isfinite(*value)) value.reset();
  const bool wasTyping = std::exchange(FTyped, std::nullopt).has_value();
  if (FValue == value) {
    if (wasTyping) LooksChanged();
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
  LooksChanged();
}

void TSpinEdit::SetMax(std::optional<double> max) {
  FMax = max;
  LooksChanged();
}

void TSpinEdit::SetStep(double step) {
  FStep = step;
  LooksChanged();
}

void TSpinEdit::SetFormat(const TNumberFormat& format) {
  FFormat = format;
  LooksChanged();
}

bool TSpinEdit::Accepts(std::string_view typed, char key) const {
  if ((key >= '0' && key <= '9') || key == ',') return true;
  if (key == '-') return typed.empty() && (!FMin || *FMin < 0);
  if (key == '.') return !FFormat.whole && typed.find('.') == std::string_view::npos;
  return false;
}

void TSpinEdit::SetTyped(std::string typed) {
  FTyped = std::move(typed);
  LooksChanged();
}

void TSpinEdit::TakeUp() {
  if (!FTyped) return;
  const std::string digits = WithoutSeparators(*FTyped);
  if (digits.empty()) {
    SetValue(std::nullopt);
    return;
  }
  std::optional<double> value = text::ParseNumber(digits);
  if (!value) {
    SetValue(FValue);
    return;
  }
  if (FMax) value = std::min(*value, *FMax);
  if (FMin) value = std::max(*value, *FMin);
  SetValue(value);
}

TDateEdit::TDateEdit(TFrame& frame, std::string name) : TEditor(frame, std::move(name), TControlKind::Date) {}

void TDateEdit::SetValue(std::optional<text::TDateTime> value) {
  const bool wasTyping = std::exchange(FTyped, std::nullopt).has_value();
  if (FValue == value) {
    if (wasTyping) LooksChanged();
    return;
  }
  FValue = value;
  ValueChanged();
}

std::string TDateEdit::Text() const {
  if (FTyped) return *FTyped;
  return FValue ? text::DateTimeText(*FValue) : std::string();
}

void TDateEdit::SetText(std::string_view text) { SetValue(text::ParseDateTime(text)); }

bool TDateEdit::Accepts(std::string_view /*typed*/, char key) const {
  return (key >= '0' && key <= '9') || key == '-' || key == ':' || key == ' ';
}

void TDateEdit::SetTyped(std::string typed) {
  FTyped = std::move(typed);
  LooksChanged();
}

void TDateEdit::TakeUp() {
  if (!FTyped) return;
  if (text::Trim(*FTyped).empty()) {
    SetValue(std::nullopt);
  } else if (const auto typed = text::ParseDateTime(*FTyped)) {
    SetValue(typed);
  } else {
    SetValue(FValue);
  }
}

}  // namespace algo::forms
