#include "terminal/host/memory_host.h"

#include <utility>

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
  TServices(THostEvents& events, TOrderStorage& storage)
      : journal(orders, storage), context{data, events, storage} {}

  THostData data;
  TOrderStore orders;
  TOrderJournal journal;
  THostContext context;

  host::TInstalledService<TMemoryConfigManager> config{context};
  host::TInstalledService<TMemoryLanguageManager> language{context};
  host::TInstalledService<TMemoryUserAppProfile> profile{context};
  host::TInstalledService<TMemoryAccountAdapter> accounts{context};
  host::TInstalledService<TMemoryMessageBoxCtrl> messages{context};
  host::TInstalledService<TMemoryLookAndFeelService> skins{context};
  host::TInstalledService<TMemoryChannelManager> channels{context};
  host::TInstalledService<TMemoryOrderAdapter> adapter{context, orders};
  host::TInstalledService<TMemoryOrderActionManager> actions{context, journal};
  host::TInstalledService<TMemorySubscribeAdapter> subscriptions{context};
  host::TInstalledService<TMemoryMarketAdapter> market{context};
  host::TInstalledService<TMemoryEditorManager> editors{context};
  host::TInstalledService<TMemoryViewService> views{context};
};

namespace {

TOrderStorage& NoStorage() {
  static TOrderStorage nothing;
  return nothing;
}

}  // namespace

TMemoryHost::TMemoryHost(THostEvents& events) : TMemoryHost(events, NoStorage()) {}

TMemoryHost::TMemoryHost(THostEvents& events, TOrderStorage& storage)
    : FServices(std::make_unique<TServices>(events, storage)) {}

TMemoryHost::~TMemoryHost() { FServices->views->ReleaseForms(); }

THostData& TMemoryHost::Data() { return FServices->data; }

TOrderStore& TMemoryHost::Orders() { return FServices->orders; }

TOrderJournal& TMemoryHost::Journal() { return FServices->journal; }

void TMemoryHost::NotifyConfigChanged() { FServices->config->Notify(); }

void TMemoryHost::NotifySkinChanged(std::string_view name) { FServices->skins->Notify(name); }

void TMemoryHost::SetMarket(std::string_view symbol, std::optional<std::int32_t> state,
                            const TFieldChanges& changes, TMarketNotice notice) {
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
  if (notice == TMarketNotice::Item) subscriptions.Notify(item, TOneItem(item));
  if (notice == TMarketNotice::OtherItems) {
    TMemoryItem other(std::string(symbol) + "+");
    subscriptions.Notify(item, TOneItem(other));
  }
}

void TMemoryHost::SetMarket(std::string_view symbol, std::span<const TFieldText> fields) {
  TMemoryItem& item = FServices->subscriptions->Item(symbol);
  for (const auto& [field, text] : fields) item.SetField(field, text);
  FServices->subscriptions->Notify(item, TOneItem(item));
}

void TMemoryHost::NotifySpreadChanged(std::span<const std::string> codes) {
  FServices->market->Notify(codes);
}

void TMemoryHost::CallInFront(TServiceOperation operation, const std::function<void()>& work) {
  bool& own = FServices->context.ownCalls;
  FServices->context.Call(operation, [&] {
    struct TOwnCalls {
      bool& flag;
      bool former;
      ~TOwnCalls() { flag = former; }
    };
    const TOwnCalls ownCalls{own, std::exchange(own, true)};
    work();
  });
}

void TMemoryHost::ReleaseForms() { FServices->views->ReleaseForms(); }

void TMemoryHost::PostAsHost(std::int32_t channel, host::TChannelRecord& record) {
  FServices->channels->Deliver(channel, &record);
}

}  // namespace algo::terminal
