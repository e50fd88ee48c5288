#include "terminal/drive/dialogs.h"

#include <utility>

namespace algo::terminal::drive {

TDialogs::TDialogs(TFrameNames& names, TRunStack& runs, TTrader& trader, TExecute execute)
    : FNames(names), FRuns(runs), FTrader(trader), FExecute(std::move(execute)) {}

void TDialogs::Play(forms::TDialogForm& form) {
  struct TShowing {
    TDialogs& dialogs;
    ~TShowing() {
      forms::TDialogForm& done = *dialogs.FShowing.back();
      dialogs.FShowing.pop_back();
      dialogs.FTrader.DialogDone(done);
    }
  };
  FShowing.push_back(&form);
  FTrader.DialogOpened(form);
  const TShowing showing{*this};

  const std::string label = form.Frame() ? FNames.LabelOf(*form.Frame()) : std::string();
  if (const auto frame = std::dynamic_pointer_cast<host::TViewFrame>(form.Frame())) FNames.Name(frame, label);

  TRun& run = FRuns.Current();
  const std::size_t place = run.dialogsOpened++;
  TAnswerJson answers = TAnswerJson::array();
  if (place < run.dialogScripts.size()) {
    for (const auto& command : *run.dialogScripts[place]) answers.push_back(FExecute(command));
  }
  if (form.ModalResult() == forms::ModalNone) form.SetModalResult(forms::ModalCancel);

  run.dialogs.push_back({{"frame", label},
                         {"caption", form.Caption()},
                         {"width", NumberJson(form.ClientSize().width)},
                         {"height", NumberJson(form.ClientSize().height)},
                         {"answers", std::move(answers)},
                         {"result", form.ModalResult()}});
}

}  // namespace algo::terminal::drive
