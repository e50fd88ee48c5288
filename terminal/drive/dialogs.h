#pragma once

// Modal dialogs. A dialog blocks the command that led to it; meanwhile the commands that were given for it
// are carried out, and then it closes, so that a script never hangs on one.

#include <functional>
#include <vector>

#include "forms/dialog_form.h"
#include "terminal/drive/frame_names.h"
#include "terminal/drive/run_stack.h"
#include "terminal/drive/trader.h"

namespace algo::terminal::drive {

class TDialogs {
 public:
  using TExecute = std::function<TAnswerJson(const TCommandJson& command)>;

  TDialogs(TFrameNames& names, TRunStack& runs, TTrader& trader, TExecute execute);

  /// Plays the dialog: carries out the commands that the innermost command has for it, dismisses it when they
  /// gave it no result, and notes in that command how it went.
  void Play(forms::TDialogForm& form);

  /// The dialog that opened last of those that show; nullptr when none does.
  forms::TDialogForm* Innermost() const { return FShowing.empty() ? nullptr : FShowing.back(); }

 private:
  TFrameNames& FNames;
  TRunStack& FRuns;
  TTrader& FTrader;
  TExecute FExecute;
  std::vector<forms::TDialogForm*> FShowing;
};

}  // namespace algo::terminal::drive
