// Reads the controls of a frame, and sets them as a program does, bypassing keyboard and mouse.

#include <array>
#include <functional>
#include <vector>

#include "forms/dialog_form.h"
#include "terminal/drive/call_module.h"
#include "terminal/drive/command_table.h"
#include "terminal/drive/frame_state.h"
#include "terminal/drive/lookup.h"
#include "text/date_text.h"

namespace algo::terminal::drive {

namespace {

void Read(TSession& session, const TArguments& arguments, TAnswerJson& answer) {
  const auto frame = FrameOf(session, arguments);
  TAnswerJson states = TAnswerJson::object();
  if (const TCommandJson* names = arguments.Find("controls")) {
    for (const auto& name : AsTexts("controls", *names)) states[name] = StateOf(*frame, name);
  } else {
    states = StatesOf(*frame);
  }
  answer["controls"] = std::move(states);
  if (frame->Form() != nullptr) answer["form"] = FormState(*frame->Form());
}

/// The target of an assignment: a control, or a group or item of the layout.
struct TTarget {
  forms::TControl* control = nullptr;
  forms::TLayoutElement* element = nullptr;
};

/// Reads one argument and returns the assignment that it asks for. Throws ECommandError for a wrong value;
/// returns an empty function if the target has nothing of that name.
using TAssignment = std::function<void()>;
using TReadAssignment = TAssignment (*)(const TTarget& target, const TCommandJson& value);

TAssignment AssignValue(const TTarget& target, const TCommandJson& value) {
  auto* spin = dynamic_cast<forms::TSpinEdit*>(target.control);
  if (spin == nullptr) return {};
  const auto number = value.is_null() ? std::nullopt : std::optional<double>(AsNumber("value", value));
  return [spin, number] { spin->SetValue(number); };
}

TAssignment AssignText(const TTarget& target, const TCommandJson& value) {
  auto* editor = dynamic_cast<forms::TEditor*>(target.control);
  if (editor == nullptr) return {};
  return [editor, text = AsText("text", value)] { editor->SetText(text); };
}

TAssignment AssignIndex(const TTarget& target, const TCommandJson& value) {
  auto* combo = dynamic_cast<forms::TComboBox*>(target.control);
  if (combo == nullptr) return {};
  const auto index = AsInteger("index", value);
  if (index < -1 || index >= combo->Count()) throw ECommandError(combo->Name() + " has no such item");
  return [combo, index] { combo->SetIndex(index); };
}

TAssignment AssignChecked(const TTarget& target, const TCommandJson& value) {
  auto* check = dynamic_cast<forms::TCheckBox*>(target.control);
  if (check == nullptr) return {};
  return [check, checked = AsBoolean("checked", value)] { check->SetChecked(checked); };
}

TAssignment AssignDate(const TTarget& target, const TCommandJson& value) {
  auto* date = dynamic_cast<forms::TDateEdit*>(target.control);
  if (date == nullptr) return {};
  if (value.is_null()) return [date] { date->SetValue(std::nullopt); };
  const auto dateTime = text::ParseDateTime(AsText("date", value));
  if (!dateTime) throw ECommandError("'date' must be a date as YYYY-MM-DD HH:MM:SS");
  return [date, dateTime] { date->SetValue(dateTime); };
}

TAssignment AssignHint(const TTarget& target, const TCommandJson& value) {
  auto* control = target.control;
  if (control == nullptr) return {};
  return [control, hint = AsText("hint", value)] { control->SetHint(hint); };
}

TAssignment AssignEnabled(const TTarget& target, const TCommandJson& value) {
  return [target, enabled = AsBoolean("enabled", value)] {
    target.control != nullptr ? target.control->SetEnabled(enabled) : target.element->SetEnabled(enabled);
  };
}

TAssignment AssignVisible(const TTarget& target, const TCommandJson& value) {
  return [target, visible = AsBoolean("visible", value)] {
    target.control != nullptr ? target.control->SetVisible(visible) : target.element->SetVisible(visible);
  };
}

struct TAssignable {
  std::string_view name;
  TReadAssignment read;
};

constexpr std::array Assignables{
    TAssignable{"value", AssignValue},     TAssignable{"text", AssignText},
    TAssignable{"index", AssignIndex},     TAssignable{"checked", AssignChecked},
    TAssignable{"date", AssignDate},       TAssignable{"hint", AssignHint},
    TAssignable{"enabled", AssignEnabled}, TAssignable{"visible", AssignVisible},
};

TTarget TargetOf(host::TViewFrame& frame, const std::string& name) {
  const TTarget target{frame.FindControl(name), frame.Layout().Find(name)};
  if (target.control == nullptr && target.element == nullptr) {
    throw ECommandError("there is no control '" + name + "'");
  }
  return target;
}

void Set(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  const auto frame = FrameOf(session, arguments);
  const auto& name = arguments.Text("control");
  const TTarget target = TargetOf(*frame, name);
  std::vector<TAssignment> assignments;
  for (const auto& assignable : Assignables) {
    const TCommandJson* value = arguments.Find(assignable.name);
    if (value == nullptr) continue;
    assignments.push_back(assignable.read(target, *value));
    if (!assignments.back())
      throw ECommandError(name + " has no '" + std::string(assignable.name) + "' to set");
  }
  if (assignments.empty()) throw ECommandError("nothing to set was given");
  CallModule([&] {
    for (const auto& assign : assignments) assign();
  });
}

void Commit(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  const auto frame = FrameOf(session, arguments);
  auto& control = ControlOf(*frame, arguments);
  CallModule([&] { control.Commit(); });
}

constexpr std::array Commands{TCommand{"read", Read}, TCommand{"set", Set}, TCommand{"commit", Commit}};

}  // namespace

std::span<const TCommand> ControlCommands() { return Commands; }

}  // namespace algo::terminal::drive
