// The trader's side of a frame: what typing, clicking, picking and Enter do.

#include <utility>

#include "forms/frame.h"

namespace algo::forms {

TInputResult TFrame::TakesInput(const TControl& control) const {
  if (!control.Showing()) return TInputResult::Hidden;
  if (!control.CanFocus()) return TInputResult::Disabled;
  return TInputResult::Taken;
}

template <class TInput>
TInputResult TFrame::Input(TControl& control, TInput&& act) {
  const auto alive = KeepAlive();
  TInputResult result = TakesInput(control);
  if (result != TInputResult::Taken) return result;
  const auto whole = [&] {
    SetFocus(&control);
    // Leaving the former control may have locked or hidden this one.
    result = TakesInput(control);
    if (result == TInputResult::Taken) act();
  };
  RunInput(std::ref(whole));
  return result;
}

TInputResult TFrame::InputText(TControl& control, std::string_view text) {
  auto* editor = dynamic_cast<TEditor*>(&control);
  if (editor == nullptr) return TInputResult::Unsuited;
  if (control.Showing() && control.CanFocus() && control.ReadOnly()) return TInputResult::ReadOnly;
  return Input(control, [&] {
    std::string typed;
    editor->FAllSelected = false;
    if (text.empty()) editor->SetTyped(typed);
    for (const char key : text) {
      if (!editor->Accepts(typed, key)) continue;
      typed += key;
      editor->SetTyped(typed);
    }
  });
}

TInputResult TFrame::InputTyped(TControl& control, std::string_view text) {
  auto* editor = dynamic_cast<TEditor*>(&control);
  if (editor == nullptr || !editor->AcceptsText(text)) return TInputResult::Unsuited;
  if (control.Showing() && control.CanFocus() && control.ReadOnly()) return TInputResult::ReadOnly;
  return Input(control, [&] {
    editor->FAllSelected = false;
    if (editor->Text() != text) editor->SetTyped(std::string(text));
  });
}

TInputResult TFrame::InputFocus(TControl& control) {
  return Input(control, [] {});
}

void TFrame::InputLeave() {
  const auto alive = KeepAlive();
  RunInput([this] { SetFocus(nullptr); });
}

TInputResult TFrame::InputEnter(TControl& control) {
  return Input(control, [&] {
    if (control.Kind() == TControlKind::Button) {
      Press(control);
    } else {
      control.Run(control.OnEnterKey);
    }
  });
}

TInputResult TFrame::InputClick(TControl& control) {
  return Input(control, [&] { Press(control); });
}

void TFrame::Press(TControl& control) {
  if (auto* check = dynamic_cast<TCheckBox*>(&control)) {
    if (check->ReadOnly()) return;
    check->SetChecked(!check->Checked());
  } else if (auto* speed = dynamic_cast<TSpeedButton*>(&control)) {
    speed->SetPressed(true);
  }
  control.Run(control.OnClick);
}

TInputResult TFrame::InputPick(TControl& control, std::int32_t index) {
  auto* combo = dynamic_cast<TComboBox*>(&control);
  if (combo == nullptr) return TInputResult::Unsuited;
  if (combo->Showing() && combo->CanFocus() && combo->ReadOnly()) return TInputResult::ReadOnly;
  if (index < 0 || index >= combo->Count()) return TInputResult::OutOfRange;
  return Input(control, [&] { combo->SetIndex(index); });
}

}  // namespace algo::forms
