// The trader's input: everything that comes in through keyboard and mouse.

#include <array>

#include "terminal/drive/call_module.h"
#include "terminal/drive/command_table.h"
#include "terminal/drive/input_checks.h"
#include "terminal/drive/lookup.h"

namespace algo::terminal::drive {

namespace {

void Type(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  const auto frame = FrameOf(session, arguments);
  auto& control = ControlOf(*frame, arguments);
  const auto& text = arguments.Text("text");
  CheckTaken(CallModule([&] { return session.Input().Type(frame, control, text); }), control);
}

void Paste(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  const auto frame = FrameOf(session, arguments);
  auto& control = ControlOf(*frame, arguments);
  const auto& text = arguments.Text("text");
  CheckTaken(CallModule([&] { return session.Input().Paste(frame, control, text); }), control);
}

void Leave(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  const auto frame = FrameOf(session, arguments);
  CallModule([&] { session.Input().Leave(frame); });
}

void Enter(TSession& session, const TArguments& arguments, TAnswerJson& answer) {
  const auto frame = FrameOf(session, arguments);
  forms::TControl* control = arguments.Has("control") ? &ControlOf(*frame, arguments) : frame->Focused();
  if (control == nullptr) throw ECommandError("no control has the focus");
  CheckTaken(CallModule([&] { return session.Input().Enter(frame, *control); }), *control);
  answer["focus"] = frame->Focused() == nullptr ? std::string() : frame->Focused()->Name();
}

void Click(TSession& session, const TArguments& arguments, TAnswerJson& answer) {
  const auto frame = FrameOf(session, arguments);
  auto& control = ControlOf(*frame, arguments);
  CheckTaken(CallModule([&] { return session.Input().Click(frame, control); }), control);
  if (const auto* editor = dynamic_cast<const forms::TEditor*>(&control)) {
    answer["selected"] = editor->SelectedText();
  }
}

void Pick(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  const auto frame = FrameOf(session, arguments);
  auto& control = ControlOf(*frame, arguments);
  const auto index = ItemOf(control, arguments);
  CheckTaken(CallModule([&] { return session.Input().Pick(frame, control, index); }), control);
}

void Dismiss(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  const auto result = arguments.Integer("result");
  forms::TDialogForm* form = session.Dialogs().Innermost();
  if (form == nullptr) throw ECommandError("no modal dialog is showing");
  if (result == forms::ModalNone) throw ECommandError("'result' must be a number that ends a dialog, not 0");
  session.Input().Dismiss(*form, result);
}

void CloseForm(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  const auto frame = FrameOf(session, arguments);
  forms::TDialogForm* form = frame->Form();
  if (form == nullptr || form->Modal() || !form->Showing()) {
    throw ECommandError("'" + arguments.Text("frame") + "' sits in no form that shows beside others");
  }
  CallModule([&] { session.Input().Close(*form); });
  if (frame->Form() != nullptr && frame->Form()->Showing()) throw ECommandError("the form did not close");
}

constexpr std::array Commands{
    TCommand{"type", Type},       TCommand{"paste", Paste},          TCommand{"leave", Leave},
    TCommand{"enter", Enter},     TCommand{"click", Click},          TCommand{"pick", Pick},
    TCommand{"dismiss", Dismiss}, TCommand{"close_form", CloseForm},
};

}  // namespace

std::span<const TCommand> InputCommands() { return Commands; }

}  // namespace algo::terminal::drive
