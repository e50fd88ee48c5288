#include "forms/date_edit.h"

#include <utility>

#include "forms/toolkit.h"
#include "text/text.h"

namespace algo::forms {

TDateEdit::TDateEdit(TFrame& frame, std::string name) : TEditor(frame, std::move(name), TControlKind::Date) {}

void TDateEdit::SetValue(std::optional<text::TDateTime> value) {
  const bool wasTyping = std::exchange(FTyped, std::nullopt).has_value();
  if (FValue == value) {
    if (wasTyping) AppearanceChanged();
    return;
  }
  FValue = value;
  ValueChanged();
}

std::optional<text::TDateTime> TDateEdit::EnteredValue() const {
  if (!FTyped) return FValue;
  if (text::Trim(*FTyped).empty()) return std::nullopt;
  if (const auto typed = text::ParseDateTime(*FTyped)) return typed;
  if (const auto time = text::ParseTimeOfDay(*FTyped)) return TToolkit::Current().Today() + *time;
  return FValue;
}

std::string TDateEdit::Text() const { return FTyped ? *FTyped : ValueText(); }

std::string TDateEdit::ValueText() const { return FValue ? text::DateTimeText(*FValue) : std::string(); }

void TDateEdit::SetText(std::string_view text) { SetValue(text::ParseDateTime(text)); }

bool TDateEdit::Accepts(std::string_view /*typed*/, char key) const {
  return (key >= '0' && key <= '9') || key == '-' || key == ':' || key == ' ';
}

void TDateEdit::SetTyped(std::string typed) {
  FTyped = std::move(typed);
  AppearanceChanged();
}

void TDateEdit::TakeUp() {
  if (FTyped) SetValue(EnteredValue());
}

void TDateEdit::PickDay(std::chrono::local_days day) {
  text::TDateTime picked = day;
  if (const auto entered = EnteredValue(); entered && FPickKeepsTime) {
    picked += *entered - std::chrono::floor<std::chrono::days>(*entered);
  }
  SetTyped(text::DateTimeText(picked));
}

}  // namespace algo::forms
