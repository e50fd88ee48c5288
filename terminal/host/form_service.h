#pragma once

// The window system without windows: dialog forms that are operated through the host's events.

#include <cstdint>
#include <memory>
#include <vector>

#include "plugin/host_contract/view_functions.h"
#include "terminal/host/host_context.h"

namespace algo::terminal {

/// The open modeless forms. The host holds them, so that they live until they are closed.
using TShownForms = std::vector<std::shared_ptr<forms::TDialogForm>>;

class TMemoryForm final : public forms::TDialogForm {
 public:
  /// Both outlive the form.
  TMemoryForm(THostEvents& events, TShownForms& shown) : FEvents(events), FShown(shown) {}

 protected:
  void RunModal() override;
  void Shown() override;
  void Hidden() override;
  void BroughtToFront() override;
  void AppearanceChanged() override;

 private:
  THostEvents& FEvents;
  TShownForms& FShown;
};

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
