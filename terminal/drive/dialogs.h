#pragma once

// Modal dialogs. A dialog blocks the command that opened it; meanwhile the commands that were given for the
// dialog are executed, and then it closes, so that a script never hangs.

#include <vector>

#include "forms/dialog_form.h"
#include "terminal/drive/command_stack.h"
#include "terminal/drive/execute.h"
#include "terminal/drive/frame_labels.h"
#include "terminal/drive/input_player.h"

namespace algo::terminal::drive {

class TDialogs {
 public:
  TDialogs(TFrameLabels& labels, TCommandStack& stack, TInputPlayer& input, TExecute execute);

  /// Runs the dialog: executes the commands that the innermost command has for it, dismisses it if they gave
  /// it no result, and records the outcome in that command.
  void Play(forms::TDialogForm& form);

  /// The open dialog that was opened last; nullptr if none is open.
  forms::TDialogForm* Innermost() const { return FShowing.empty() || FEnded ? nullptr : FShowing.back(); }

  /// Whether a dialog is being played. One that has ended is so until its commands are through.
  bool Playing() const { return !FShowing.empty(); }

  /// Ends the dialogs, whatever their results, as cancelled; from now on no other opens.
  void End() { FEnded = true; }
  /// Lets dialogs open again. None is being played.
  void Restart() { FEnded = false; }

 private:
  TFrameLabels& FLabels;
  TCommandStack& FRunning;
  TInputPlayer& FInput;
  TExecute FExecute;
  std::vector<forms::TDialogForm*> FShowing;
  bool FEnded = false;
};

}  // namespace algo::terminal::drive
