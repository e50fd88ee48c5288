#pragma once

// Modal dialogs. A dialog blocks the command that opened it; meanwhile the commands that were given for the
// dialog are executed, and then it closes, so that a script never hangs.

#include <functional>
#include <vector>

#include "forms/dialog_form.h"
#include "terminal/drive/command_stack.h"
#include "terminal/drive/frame_labels.h"
#include "terminal/drive/input_player.h"

namespace algo::terminal::drive {

class TDialogs {
 public:
  using TExecute = std::function<TAnswerJson(const TCommandJson& command)>;

  TDialogs(TFrameLabels& labels, TCommandStack& stack, TInputPlayer& input, TExecute execute);

  /// Runs the dialog: executes the commands that the innermost command has for it, dismisses it if they gave
  /// it no result, and records the outcome in that command.
  void Play(forms::TDialogForm& form);

  /// The open dialog that was opened last; nullptr if none is open.
  forms::TDialogForm* Innermost() const { return FShowing.empty() ? nullptr : FShowing.back(); }

 private:
  TFrameLabels& FLabels;
  TCommandStack& FRunning;
  TInputPlayer& FInput;
  TExecute FExecute;
  std::vector<forms::TDialogForm*> FShowing;
};

}  // namespace algo::terminal::drive
