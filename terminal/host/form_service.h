#pragma once

// The window system without windows: makes dialog forms, and holds those that show.

#include <cstdint>
#include <memory>

#include "plugin/host_contract/view_functions.h"
#include "terminal/host/host_context.h"
#include "terminal/host/memory_form.h"

namespace algo::terminal {

class TMemoryViewService final : public host::TCustomViewService {
 public:
  explicit TMemoryViewService(const THostContext& host) : FHost(host) {}

  std::shared_ptr<forms::TDialogForm> MakeDialogForm(host::TIBaseView& provider) override;
  void Notify(host::TViewFrame& view, std::int32_t code) override;

  /// Releases the open forms without closing them.
  void ReleaseForms();

 private:
  const THostContext& FHost;
  TShownForms FShown;
};

}  // namespace algo::terminal
