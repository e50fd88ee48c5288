#pragma once

// What a view asks of the window system of the terminal: dialog forms, and notice of its own changes.

#include <cstdint>
#include <memory>

#include "plugin/host_contract/base_view.h"
#include "plugin/host_contract/service.h"

namespace algo::host {

/// The visible layout of a view changed: the host fits the view's size again.
inline constexpr std::int32_t ViewChanged = 1025;

/// The host's side of the view functions.
class ALGO_SHARED TCustomViewService : public THostService<TCustomViewService> {
 public:
  virtual ~TCustomViewService();

  /// Makes a dialog form for the provider to put a frame into. The form goes when its last holder lets go of
  /// it; the host holds a form that shows.
  /// [module → host, while a provider lives]
  virtual std::shared_ptr<forms::TDialogForm> MakeDialogForm(TIBaseView& provider) = 0;

  /// A view tells the host that it changed; the module sends ViewChanged.
  /// [module → host, while a provider lives]
  virtual void Notify(TViewFrame& view, std::int32_t code) = 0;
};

/// Asks the host for a dialog form.
/// [module → host, while a provider lives]
ALGO_SHARED std::shared_ptr<forms::TDialogForm> GetDialogForm(TIBaseView& provider);

/// Tells the host that a view changed.
/// [module → host, while a provider lives]
ALGO_SHARED void SendViewNotify(TViewFrame& view, std::int32_t code);

}  // namespace algo::host
