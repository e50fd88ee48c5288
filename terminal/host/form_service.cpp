#include "terminal/host/form_service.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace algo::terminal {

void TMemoryForm::RunModal() {
  FEvents.RunModal(*this);
  assert(ModalResult() != forms::ModalNone);
}

void TMemoryForm::Shown() {
  const auto self = shared_from_this();
  if (std::find(FShown.begin(), FShown.end(), self) == FShown.end()) FShown.push_back(self);
  FEvents.FormShown(*this);
}

void TMemoryForm::Hidden() {
  // A modal form is hidden too when it is done, but was never among the modeless forms.
  const auto self = shared_from_this();
  if (std::erase(FShown, self) > 0) FEvents.FormClosed(*this);
}

void TMemoryForm::BroughtToFront() { FEvents.FormBroughtToFront(*this); }

void TMemoryForm::AppearanceChanged() { FEvents.FormAppearanceChanged(*this); }

std::shared_ptr<forms::TDialogForm> TMemoryViewService::MakeDialogForm(host::TIBaseView& /*provider*/) {
  FHost.Check("form.make");
  return std::make_shared<TMemoryForm>(FHost.events, FShown);
}

void TMemoryViewService::Notify(host::TViewFrame& view, std::int32_t code) {
  FHost.Check("view.notify");
  FHost.events.ViewNotified(view, code);
}

void TMemoryViewService::ReleaseForms() {
  // Out of the list first: a frame that is destroyed with its form may close others.
  const TShownForms released = std::exchange(FShown, {});
}

}  // namespace algo::terminal
