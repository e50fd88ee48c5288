#include "forms/dialog_form.h"

#include <cassert>
#include <exception>
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
  // What fails does not keep the form from closing whole; the first failure is reported when it is closed.
  std::exception_ptr failure;
  const auto attempt = [&failure](const auto& step) {
    try {
      step();
    } catch (...) {
      if (!failure) failure = std::current_exception();
    }
  };
  if (OnClose) attempt([&] { OnClose(*this, action); });
  // Whoever failed before saying what becomes of the form leaves it as it is.
  if (failure && action == TCloseAction::Hide) action = TCloseAction::None;
  if (action != TCloseAction::None) attempt([this] { Hide(); });
  if (action == TCloseAction::Free) {
    // Whoever holds the form still may close it again, when the one who answered is gone.
    OnClose = nullptr;
    attempt([this] { Freed(); });
    if (FFrame) attempt([this] { FFrame->Detach(); });
  }
  if (!failure) return;
  if (!FFrame) std::rethrow_exception(failure);
  FFrame->Failed(failure);
}

void TDialogForm::SetModalResult(std::int32_t result) {
  if (FModal) FModalResult = result;
}

}  // namespace algo::forms
