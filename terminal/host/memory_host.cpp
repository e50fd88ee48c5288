#include "terminal/host/memory_host.h"

#include "plugin/host_contract/installed_service.h"
#include "terminal/host/channel_service.h"
#include "terminal/host/config_service.h"
#include "terminal/host/editor_service.h"
#include "terminal/host/form_service.h"
#include "terminal/host/host_context.h"
#include "terminal/host/market_services.h"
#include "terminal/host/order_services.h"
#include "terminal/host/screen_services.h"
#include "terminal/host/user_services.h"

namespace algo::terminal {

struct TMemoryHost::TServices {
  TServices(THostEvents& events, TOrderStorage& keeper)
      : ledger(orders, keeper), context{data, events, keeper} {}

  THostData data;
  TOrderStore orders;
  TOrderJournal ledger;
  THostContext context;

  host::TInstalledService<TMemoryConfigManager> config{context};
  host::TInstalledService<TMemoryLanguageManager> language{context};
  host::TInstalledService<TMemoryUserAppProfile> profile{context};
  host::TInstalledService<TMemoryAccountAdapter> accounts{context};
  host::TInstalledService<TMemoryMessageBoxCtrl> messages{context};
  host::TInstalledService<TMemoryLookAndFeelService> skins{context};
  host::TInstalledService<TMemoryChannelManager> channels{context};
  host::TInstalledService<TMemoryOrderAdapter> adapter{context, orders};
  host::TInstalledService<TMemoryOrderActionManager> actions{context, ledger};
  host::TInstalledService<TMemorySubscribeAdapter> subscriptions{context};
  host::TInstalledService<TMemoryMarketAdapter> market{context};
  host::TInstalledService<TMemoryEditorManager> editors{context};
  host::TInstalledService<TMemoryViewService> views{context};
};

namespace {

TOrderStorage& KeepsNothing() {
  static TOrderStorage nothing;
  return nothing;
}

}  // namespace

TMemoryHost::TMemoryHost(THostEvents& events) : TMemoryHost(events, KeepsNothing()) {}

TMemoryHost::TMemoryHost(THostEvents& events, TOrderStorage& keeper)
    : FServices(std::make_unique<TServices>(events, keeper)) {}

TMemoryHost::~TMemoryHost() { FServices->views->DropForms(); }

THostData& TMemoryHost::Data() { return FServices->data; }

TOrderStore& TMemoryHost::Orders() { return FServices->orders; }

TOrderJournal& TMemoryHost::Ledger() { return FServices->ledger; }

void TMemoryHost::TellConfigChanged() { FServices->config->Tell(); }

void TMemoryHost::TellSkinChanged(std::string_view name) { FServices->skins->Tell(name); }

void TMemoryHost::SetMarket(std::string_view symbol, std::optional<std::int32_t> state,
                            const TFieldChanges& changes, bool notify, bool others) {
  TMemorySubscribeAdapter& subscriptions = *FServices->subscriptions;
  TMemoryItem& item = subscriptions.Item(symbol);
  if (state) item.SetState(*state);
  for (const auto& [field, text] : changes) {
    if (text) {
      item.SetField(field, *text);
    } else {
      item.RemoveField(field);
    }
  }
  if (!notify) return;
  if (others) {
    TMemoryItem other(std::string(symbol) + "+");
    subscriptions.Tell(item, TOneItem(other));
  } else {
    subscriptions.Tell(item, TOneItem(item));
  }
}

void TMemoryHost::SetMarket(std::string_view symbol, std::span<const TFieldText> fields) {
  TMemoryItem& item = FServices->subscriptions->Item(symbol);
  for (const auto& [field, text] : fields) item.SetField(field, text);
  FServices->subscriptions->Tell(item, TOneItem(item));
}

void TMemoryHost::TellSpread(std::span<const std::string> codes) { FServices->market->Tell(codes); }

void TMemoryHost::PostAsHost(std::int32_t channel, host::TChannelRecord& record) {
  FServices->channels->Deliver(channel, &record);
}

}  // namespace algo::terminal
