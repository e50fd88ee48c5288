#include "plugin/host_contract/listen.h"

#include <functional>
#include <memory>
#include <utility>

#include "plugin/host_contract/editor_manager.h"

namespace algo::host {

namespace {

using TMark = std::shared_ptr<const bool>;

/// A handler that does nothing any more once `registered` is gone. An empty one stays empty.
template <class... TArguments>
std::function<void(TArguments...)> Guarded(std::function<void(TArguments...)> handler,
                                           const TMark& registered) {
  if (!handler) return handler;
  return [handler = std::move(handler), alive = std::weak_ptr(registered)](TArguments... arguments) {
    if (!alive.expired()) handler(arguments...);
  };
}

// In all of these `release` is complete before anything is registered, so that nothing fails between the two.

template <class TAdd>
TRegistration Register(TAdd&& add, std::function<void()> release) {
  add();
  return TRegistration(std::move(release));
}

/// Registers the handler with a service by its operation `add`; `remove` takes it back. `what` is what both
/// are given first.
template <class TService, class TAdd, class TRemove, class THandler, class... TWhat>
TRegistration Listen(TAdd add, TRemove remove, THandler handler, TOwner owner, TWhat... what) {
  auto registered = std::make_shared<const bool>(true);
  auto guarded = Guarded(std::move(handler), registered);
  return Register([&] { (TService::GetInstance().*add)(what..., std::move(guarded), owner); },
                  [registered = std::move(registered), remove, owner, what...]() mutable {
                    registered.reset();
                    (TService::GetInstance().*remove)(what..., owner);
                  });
}

/// Registers the control with the editor manager by its operation `add`; `remove` takes it back.
template <class TAdd, class TRemove, class TControl, class... TMore>
TRegistration RegisterEditor(TAdd add, TRemove remove, TControl& control, TMore... more) {
  return Register([&] { (TEditorManager::GetInstance().*add)(control, more...); },
                  [remove, &control] { (TEditorManager::GetInstance().*remove)(control); });
}

}  // namespace

TRegistration ListenToChannel(std::int32_t channel, TCustomGlobalChannelManager::THandler handler,
                              TOwner owner) {
  using TService = TCustomGlobalChannelManager;
  return Listen<TService>(&TService::Subscribe, &TService::Unsubscribe, std::move(handler), owner, channel);
}

TRegistration ListenToSettings(TCustomConfigManager::TListener listener, TOwner owner) {
  using TService = TCustomConfigManager;
  return Listen<TService>(&TService::AddListener, &TService::RemoveListener, std::move(listener), owner);
}

TRegistration ListenToSkins(TCustomLookAndFeelService::TListener listener, TOwner owner) {
  using TService = TCustomLookAndFeelService;
  return Listen<TService>(&TService::AddListener, &TService::RemoveListener, std::move(listener), owner);
}

TRegistration ListenToSpreads(TCustomMarketAdapter::TSpreadListener listener, TOwner owner) {
  using TService = TCustomMarketAdapter;
  return Listen<TService>(&TService::AddSpreadListener, &TService::RemoveSpreadListener, std::move(listener),
                          owner);
}

TRegistration ListenToItem(TMarketDataItem* item, TCustomSubscribeAdapter::TListener listener, TOwner owner) {
  using TService = TCustomSubscribeAdapter;
  return Listen<TService>(&TService::AddListener, &TService::Unsubscribe, std::move(listener), owner, item);
}

TRegistration RegisterAccountEditor(forms::TTextEdit& control, std::string_view groupId, std::int32_t mode,
                                    std::int32_t options) {
  return RegisterEditor(&TEditorManager::RegisterAccountEditor, &TEditorManager::RemoveAccountEditor, control,
                        groupId, mode, options);
}

TRegistration RegisterSymbolEditor(forms::TTextEdit& control, std::string_view groupId, std::int32_t mode,
                                   std::int32_t options) {
  return RegisterEditor(&TEditorManager::RegisterSymbolEditor, &TEditorManager::RemoveSymbolEditor, control,
                        groupId, mode, options);
}

TRegistration RegisterPriceEditor(forms::TSpinEdit& control, std::string_view groupId) {
  return RegisterEditor(&TEditorManager::RegisterPriceEditor, &TEditorManager::RemovePriceEditor, control,
                        groupId);
}

TRegistration RegisterQuantityEditor(forms::TSpinEdit& control, std::string_view groupId) {
  return RegisterEditor(&TEditorManager::RegisterQuantityEditor, &TEditorManager::RemoveQuantityEditor,
                        control, groupId);
}

}  // namespace algo::host
