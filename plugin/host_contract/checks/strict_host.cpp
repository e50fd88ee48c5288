#include "plugin/host_contract/checks/strict_host.h"

#include <optional>
#include <utility>

#include "plugin/host_contract/checks/strict_editors.h"
#include "plugin/host_contract/checks/strict_market.h"
#include "plugin/host_contract/checks/strict_orders.h"
#include "plugin/host_contract/checks/strict_provider.h"
#include "plugin/host_contract/checks/strict_views.h"
#include "plugin/host_contract/checks/violations.h"
#include "plugin/host_contract/installed_service.h"

namespace algo::host::checks {

namespace {

/// A strict layer, where there is a service to put it around.
template <class TLayer>
using TWrapped = std::optional<TInstalledService<TLayer>>;

template <class TService, class TLayer, class... TArguments>
void Wrap(TWrapped<TLayer>& layer, TArguments&... arguments) {
  TService* inner = TService::Install(nullptr);
  TService::Install(inner);
  if (inner != nullptr) layer.emplace(*inner, arguments...);
}

}  // namespace

// The services that only answer (the profile, the accounts, the messages) have no rule to break.
struct TStrictHost::TServices {
  TServices() {
    Wrap<TCustomConfigManager>(config, violations);
    Wrap<TCustomLanguageManager>(language, violations);
    Wrap<TCustomLookAndFeelService>(skins, violations);
    Wrap<TCustomViewService>(views);
    Wrap<TCustomOrderAdapter>(adapter, orders, violations);
    Wrap<TCustomOrderActionManager>(actions, orders, violations);
    Wrap<TCustomGlobalChannelManager>(channels, orders, violations);
    Wrap<TCustomSubscribeAdapter>(subscriptions, violations);
    Wrap<TCustomMarketAdapter>(market, violations);
    Wrap<TEditorManager>(editors, violations);
  }

  TViolations violations;
  TOrderJournal orders;
  TWrapped<TStrictConfig> config;
  TWrapped<TStrictLanguage> language;
  TWrapped<TStrictSkins> skins;
  TWrapped<TStrictViews> views;
  TWrapped<TStrictOrders> adapter;
  TWrapped<TStrictActions> actions;
  TWrapped<TStrictChannels> channels;
  TWrapped<TStrictSubscriptions> subscriptions;
  TWrapped<TStrictMarket> market;
  TWrapped<TStrictEditors> editors;
};

TStrictHost::TStrictHost() : FServices(std::make_unique<TServices>()) {}

TStrictHost::~TStrictHost() = default;

void TStrictHost::OnViolation(TViolationHandler handler) {
  FServices->violations.SetHandler(std::move(handler));
}

std::unique_ptr<TIBaseView> TStrictHost::Watch(std::unique_ptr<TIBaseView> provider) const {
  if (!provider) return nullptr;
  return std::make_unique<TStrictProvider>(std::move(provider), FServices->violations);
}

TLeftBehind TStrictHost::LeftBehind() const {
  TServices& services = *FServices;
  TLeftBehind left;
  if (services.channels) left.channels = (*services.channels)->Handlers();
  if (services.config) left.configListeners = (*services.config)->Listeners();
  if (services.market) left.marketListeners = (*services.market)->Listeners();
  if (services.subscriptions) left.subscriptions = (*services.subscriptions)->Items();
  if (services.editors) left.editors = (*services.editors)->Controls();
  if (services.skins) left.skinListeners = (*services.skins)->Listeners();
  left.orders = services.orders.held.size();
  if (services.views) left.forms = (*services.views)->Forms();
  return left;
}

}  // namespace algo::host::checks
