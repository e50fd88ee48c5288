// The trader's side of a frame: what typing, clicking, picking and Enter do.

#include <utility>

#include "forms/frame.h"

namespace algo::forms {

namespace {

// The days that have a text.
constexpr std::chrono::local_days FirstDay{std::chrono::year(1) / 1 / 1};
constexpr std::chrono::local_days LastDay{std::chrono::year(9999) / 12 / 31};

}  // namespace

TInputResult TFrame::TakesInput(const TControl& control) const {
  if (!control.Showing()) return TInputResult::Hidden;
  if (!control.CanFocus()) return TInputResult::Disabled;
  return TInputResult::Taken;
}

TInputResult TFrame::TakesChange(const TControl& control) const {
  const TInputResult result = TakesInput(control);
  return result == TInputResult::Taken && control.ReadOnly() ? TInputResult::ReadOnly : result;
}

template <class TAct>
TInputResult TFrame::Input(TControl& control, TCheck takes, TAct&& act) {
  const auto alive = KeepAlive();
  TInputResult result = (this->*takes)(control);
  if (result != TInputResult::Taken) return result;
  const auto whole = [&] {
    SetFocus(&control);
    // Leaving the former control may have locked or hidden this one.
    result = (this->*takes)(control);
    if (result == TInputResult::Taken) act();
  };
  RunInput(std::ref(whole));
  return result;
}

TInputResult TFrame::InputText(TControl& control, std::string_view text) {
  auto* editor = dynamic_cast<TEditor*>(&control);
  if (editor == nullptr) return TInputResult::Unsuited;
  return Input(control, &TFrame::TakesChange, [&] {
    std::string typed;
    for (const char key : editor->Normalized(text)) {
      if (editor->Accepts(typed, key)) typed += key;
    }
    editor->FAllSelected = false;
    if (text.empty() || !typed.empty()) editor->KeyIn(std::move(typed));
  });
}

TInputResult TFrame::InputPaste(TControl& control, std::string_view text) {
  auto* editor = dynamic_cast<TEditor*>(&control);
  if (editor == nullptr) return TInputResult::Unsuited;
  return Input(control, &TFrame::TakesChange, [&] {
    std::string pasted = editor->Pasted(text);
    // Half of a text would be another one.
    if (!editor->AcceptsText(pasted)) return;
    editor->FAllSelected = false;
    editor->KeyIn(std::move(pasted));
  });
}

TInputResult TFrame::InputTyped(TControl& control, std::string_view text) {
  auto* editor = dynamic_cast<TEditor*>(&control);
  if (editor == nullptr) return TInputResult::Unsuited;
  std::string typed = editor->Normalized(text);
  if (!editor->AcceptsText(typed)) return TInputResult::Unsuited;
  return Input(control, &TFrame::TakesChange, [&] {
    editor->FAllSelected = false;
    if (editor->Text() != typed) editor->SetTyped(std::move(typed));
  });
}

TInputResult TFrame::InputFocus(TControl& control, TFocusCause cause) {
  return Input(control, &TFrame::TakesInput, [&] {
    auto* editor = dynamic_cast<TEditor*>(&control);
    const bool selects = cause == TFocusCause::Tab && control.Focused();
    if (editor != nullptr && selects && !editor->Text().empty()) editor->SelectAll();
  });
}

void TFrame::InputLeave() {
  const auto alive = KeepAlive();
  RunInput([this] { SetFocus(nullptr); });
}

TInputResult TFrame::InputEnter(TControl& control) {
  return Input(control, &TFrame::TakesInput, [&] {
    if (control.Kind() == TControlKind::Button) {
      Press(control);
    } else {
      control.Run(control.OnEnterKey);
    }
  });
}

TInputResult TFrame::InputClick(TControl& control) {
  return Input(control, &TFrame::TakesInput, [&] { Press(control); });
}

void TFrame::Press(TControl& control) {
  if (auto* check = dynamic_cast<TCheckBox*>(&control)) {
    if (check->ReadOnly()) return;
    check->SetChecked(!check->Checked());
  } else if (auto* speed = dynamic_cast<TSpeedButton*>(&control)) {
    speed->SetPressed(true);
  } else if (auto* editor = dynamic_cast<TEditor*>(&control)) {
    editor->MoveCaretToEnd();
  }
  control.Run(control.OnClick);
}

TInputResult TFrame::InputPick(TControl& control, std::int32_t index) {
  auto* combo = dynamic_cast<TComboBox*>(&control);
  if (combo == nullptr) return TInputResult::Unsuited;
  if (const TInputResult result = TakesChange(control); result != TInputResult::Taken) return result;
  if (index < 0 || index >= combo->Count()) return TInputResult::OutOfRange;
  return Input(control, &TFrame::TakesChange, [&] { combo->SetIndex(index); });
}

TInputResult TFrame::InputStep(TControl& control, std::int32_t steps) {
  auto* spin = dynamic_cast<TSpinEdit*>(&control);
  if (spin == nullptr) return TInputResult::Unsuited;
  return Input(control, &TFrame::TakesChange, [&] { spin->StepBy(steps); });
}

TInputResult TFrame::InputPickDay(TControl& control, std::chrono::local_days day) {
  auto* date = dynamic_cast<TDateEdit*>(&control);
  if (date == nullptr) return TInputResult::Unsuited;
  if (const TInputResult result = TakesChange(control); result != TInputResult::Taken) return result;
  if (day < FirstDay || day > LastDay) return TInputResult::OutOfRange;
  return Input(control, &TFrame::TakesChange, [&] { date->PickDay(day); });
}

}  // namespace algo::forms
