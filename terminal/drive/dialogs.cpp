#include "terminal/drive/dialogs.h"

#include <utility>

namespace algo::terminal::drive {

TDialogs::TDialogs(TFrameLabels& labels, TCommandStack& stack, TInputPlayer& input, TExecute execute)
    : FLabels(labels), FRunning(stack), FInput(input), FExecute(std::move(execute)) {}

void TDialogs::Play(forms::TDialogForm& form) {
  if (FEnded) return form.SetModalResult(forms::ModalCancel);
  struct TShowing {
    TDialogs& dialogs;
    ~TShowing() {
      forms::TDialogForm& done = *dialogs.FShowing.back();
      dialogs.FShowing.pop_back();
      dialogs.FInput.DialogDone(done);
    }
  };
  FShowing.push_back(&form);
  FInput.DialogOpened(form);
  const TShowing showing{*this};

  const std::string label = form.Frame() ? FLabels.LabelOf(*form.Frame()) : std::string();
  if (const auto frame = std::dynamic_pointer_cast<host::TViewFrame>(form.Frame()))
    FLabels.Assign(frame, label);

  TRunningCommand& running = FRunning.Current();
  const std::size_t place = running.dialogsOpened++;
  TAnswerJson answers = TAnswerJson::array();
  if (place < running.dialogScripts.size()) {
    for (const auto& command : *running.dialogScripts[place]) answers.push_back(FExecute(command));
  }
  if (form.ModalResult() == forms::ModalNone || FEnded) form.SetModalResult(forms::ModalCancel);

  running.dialogs.push_back({{"frame", label},
                             {"caption", form.Caption()},
                             {"width", NumberJson(form.ClientSize().width)},
                             {"height", NumberJson(form.ClientSize().height)},
                             {"answers", std::move(answers)},
                             {"result", form.ModalResult()}});
}

}  // namespace algo::terminal::drive
