#include "terminal/host/form_service.h"

#include <utility>

namespace algo::terminal {

std::shared_ptr<forms::TDialogForm> TMemoryViewService::MakeDialogForm(host::TIBaseView& /*provider*/) {
  return FHost.Call(TServiceOperation::FormMake, [this]() -> std::shared_ptr<forms::TDialogForm> {
    return std::make_shared<TMemoryForm>(FHost, FShown);
  });
}

void TMemoryViewService::Notify(host::TViewFrame& view, std::int32_t code) {
  FHost.Call(TServiceOperation::ViewNotify, [&] { FHost.events.ViewNotified(view, code); });
}

void TMemoryViewService::ReleaseForms() {
  // Out of the list first: a frame that is destroyed with its form may close others.
  const TShownForms released = std::exchange(FShown, {});
}

}  // namespace algo::terminal
