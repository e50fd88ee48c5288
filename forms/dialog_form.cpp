#include "forms/dialog_form.h"

#include <cassert>
#include <utility>

#include "forms/frame.h"

namespace algo::forms {

TDialogForm::TDialogForm() = default;

TDialogForm::~TDialogForm() {
  if (FFrame) FFrame->FForm = nullptr;
}

void TDialogForm::SetCaption(std::string caption) {
  FCaption = std::move(caption);
  AppearanceChanged();
}

void TDialogForm::SetClientSize(const TSize& size) {
  FClientSize = size;
  AppearanceChanged();
}

void TDialogForm::SetStaysOnTop(bool staysOnTop) {
  FStaysOnTop = staysOnTop;
  AppearanceChanged();
}

void TDialogForm::SetFrame(std::shared_ptr<TFrame> frame) {
  assert(!FFrame && frame);
  FFrame = std::move(frame);
  FFrame->FForm = this;
}

std::int32_t TDialogForm::ShowModal() {
  assert(!FShowing);
  const auto alive = weak_from_this().lock();
  struct TEnd {
    TDialogForm& form;
    ~TEnd() { form.FModal = false; }
  };
  const TEnd end{*this};
  FModalResult = ModalNone;
  FModal = true;
  FShowing = true;
  RunModal();
  return FModalResult;
}

void TDialogForm::Show() {
  FShowing = true;
  Shown();
}

void TDialogForm::Hide() {
  if (!FShowing) return;
  FShowing = false;
  Hidden();
}

void TDialogForm::BringToFront() { BroughtToFront(); }

void TDialogForm::Close() {
  const auto alive = weak_from_this().lock();
  if (FModal) {
    if (FModalResult == ModalNone) FModalResult = ModalCancel;
    return;
  }
  TCloseAction action = TCloseAction::Hide;
  if (OnClose) OnClose(*this, action);
  if (action == TCloseAction::None) return;
  Hide();
  if (action != TCloseAction::Free) return;
  // Whoever holds the form still may close it again, when the one who answered is gone.
  OnClose = nullptr;
  Freed();
  if (FFrame) FFrame->Detach();
}

void TDialogForm::SetModalResult(std::int32_t result) {
  if (FModal) FModalResult = result;
}

}  // namespace algo::forms
