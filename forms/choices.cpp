#include "forms/choices.h"

#include <utility>

#include "forms/frame.h"
#include "text/errors.h"

namespace algo::forms {

TComboBox::TComboBox(TFrame& frame, std::string name)
    : TControl(frame, std::move(name), TControlKind::Combo) {}

void TComboBox::SetIndex(std::int32_t index) {
  if (index < -1 || index >= Count()) throw EListIndexError(index);
  if (FIndex == index && !FUnsettled) return;
  FUnsettled = false;
  FIndex = index;
  ValueChanged();
}

void TComboBox::Refill(std::vector<std::string> items, std::int32_t index) {
  if (index < -1 || index >= static_cast<std::int32_t>(items.size())) throw EListIndexError(index);
  FItems = std::move(items);
  FIndex = index;
  AppearanceChanged();
}

std::string TComboBox::Text() const {
  return FIndex < 0 ? std::string() : FItems[static_cast<std::size_t>(FIndex)];
}

TCheckBox::TCheckBox(TFrame& frame, std::string name)
    : TControl(frame, std::move(name), TControlKind::Check) {}

void TCheckBox::SetChecked(bool checked) {
  if (FChecked == checked) return;
  FChecked = checked;
  ValueChanged();
}

TButton::TButton(TFrame& frame, std::string name) : TControl(frame, std::move(name), TControlKind::Button) {}

void TButton::SetColor(std::int32_t slot, TColor color) {
  FColors[slot] = color;
  AppearanceChanged();
}

TSpeedButton::TSpeedButton(TFrame& frame, std::string name, std::int32_t group)
    : TButton(frame, std::move(name)), FGroup(group) {
  SetSize({120, 64});
}

void TSpeedButton::SetPressed(bool pressed) {
  if (FPressed == pressed) return;
  if (pressed && FGroup > 0) {
    for (const auto& control : Frame().Controls()) {
      auto* other = dynamic_cast<TSpeedButton*>(control.get());
      if (other != nullptr && other != this && other->FGroup == FGroup) other->SetPressed(false);
    }
  }
  FPressed = pressed;
  AppearanceChanged();
}

}  // namespace algo::forms
