#include "terminal/drive/frame_state.h"

#include <array>
#include <optional>
#include <string>

#include "forms/dialog_form.h"
#include "plugin/host_contract/look_and_feel_service.h"
#include "text/date_text.h"

namespace algo::terminal::drive {

namespace {

TAnswerJson OptionalNumber(const std::optional<double>& number) {
  return number ? NumberJson(*number) : TAnswerJson(nullptr);
}

std::string ColorText(forms::TColor color) {
  constexpr std::string_view Digits = "0123456789abcdef";
  std::string text = "#";
  for (int shift = 20; shift >= 0; shift -= 4) text += Digits[(color >> shift) & 0xF];
  return text;
}

std::string_view KindName(forms::TControlKind kind) {
  constexpr std::array<std::string_view, 6> Names{"edit", "spin", "combo", "date", "check", "button"};
  return Names[static_cast<std::size_t>(kind)];
}

void AddFont(TAnswerJson& state, const forms::TFont& font) {
  state["bold"] = font.bold;
  state["font_size"] = font.size;
}

/// The members that only editors have; AddChoice adds those of lists, boxes and buttons.
void AddEditor(TAnswerJson& state, const forms::TControl& control) {
  const auto* editor = dynamic_cast<const forms::TEditor*>(&control);
  if (editor == nullptr) return;
  state["text"] = editor->Text();
  if (const auto* spin = dynamic_cast<const forms::TSpinEdit*>(editor)) {
    state["value"] = OptionalNumber(spin->Value());
    state["min"] = OptionalNumber(spin->Min());
    state["max"] = OptionalNumber(spin->Max());
    state["step"] = NumberJson(spin->Step());
  }
  if (const auto* date = dynamic_cast<const forms::TDateEdit*>(editor)) {
    state["date"] = date->Value() ? TAnswerJson(text::DateTimeText(*date->Value())) : TAnswerJson(nullptr);
  }
  state["placeholder"] = editor->Placeholder();
}

void AddChoice(TAnswerJson& state, const forms::TControl& control) {
  if (const auto* combo = dynamic_cast<const forms::TComboBox*>(&control)) {
    state["text"] = combo->Text();
    state["items"] = combo->Items();
    state["index"] = combo->Index();
  }
  if (const auto* check = dynamic_cast<const forms::TCheckBox*>(&control))
    state["checked"] = check->Checked();
  if (const auto* speed = dynamic_cast<const forms::TSpeedButton*>(&control)) {
    state["pressed"] = speed->Pressed();
  }
  if (const auto* button = dynamic_cast<const forms::TButton*>(&control)) {
    const auto color = button->Colors().find(host::ButtonColorSlot);
    if (color != button->Colors().end()) state["color"] = ColorText(color->second);
  }
}

TAnswerJson ControlState(const forms::TControl& control) {
  using forms::TControlKind;
  TAnswerJson state;
  state["kind"] = KindName(control.Kind());
  state["visible"] = control.Visible();
  state["enabled"] = control.Enabled();
  state["showing"] = control.Showing();
  state["parent"] = control.Item() == nullptr ? std::string() : control.Item()->Name();
  AddEditor(state, control);
  AddChoice(state, control);
  if (control.Kind() == TControlKind::Check || control.Kind() == TControlKind::Button) {
    state["caption"] = control.Caption();
  }
  state["hint"] = control.Hint();
  if (control.Kind() != TControlKind::Button) state["readonly"] = control.ReadOnly();
  AddFont(state, control.Font());
  state["focused"] = control.Focused();
  // An item carries one control and nothing else.
  state["position"] = 0;
  return state;
}

TAnswerJson ElementState(const forms::TFrame& frame, const forms::TLayoutElement& element) {
  TAnswerJson state;
  state["kind"] = dynamic_cast<const forms::TLayoutGroup*>(&element) != nullptr ? "group" : "item";
  state["visible"] = element.Visible();
  state["enabled"] = element.Enabled();
  state["showing"] = element.Showing();
  state["parent"] = element.Parent() == nullptr ? std::string() : element.Parent()->Name();
  state["caption"] = element.Caption();
  AddFont(state, element.Font());
  state["position"] = frame.Layout().Position(element);
  return state;
}

}  // namespace

TAnswerJson StateOf(const forms::TFrame& frame, std::string_view name) {
  if (const auto* control = frame.FindControl(name)) return ControlState(*control);
  if (const auto* element = frame.Layout().Find(name)) return ElementState(frame, *element);
  throw ECommandError("there is no control '" + std::string(name) + "'");
}

TAnswerJson StatesOf(const forms::TFrame& frame) {
  TAnswerJson states = TAnswerJson::object();
  for (const auto& control : frame.Controls()) states[control->Name()] = ControlState(*control);
  for (const auto& element : frame.Layout().Elements()) {
    states[element->Name()] = ElementState(frame, *element);
  }
  return states;
}

TAnswerJson FormState(const forms::TDialogForm& form) {
  return {{"caption", form.Caption()},
          {"width", NumberJson(form.ClientSize().width)},
          {"height", NumberJson(form.ClientSize().height)},
          {"on_top", form.StaysOnTop()},
          {"showing", form.Showing()}};
}

}  // namespace algo::terminal::drive
