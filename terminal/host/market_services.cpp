#include "terminal/host/market_services.h"

#include <utility>

namespace algo::terminal {

host::TMarketDataItem* TMemorySubscribeAdapter::Subscribe(std::string_view symbol, std::string_view dataSet,
                                                          bool live) {
  FHost.Check("subscribe.add");
  TMemoryItem& item = Item(symbol);
  FHost.events.Subscribed(symbol, dataSet, live);
  return &item;
}

void TMemorySubscribeAdapter::AddListener(host::TMarketDataItem* item, TListener listener,
                                          host::TOwner owner) {
  FHost.Check("subscribe.add");
  static_cast<TMemoryItem*>(item)->Listeners().Add(std::move(listener), owner);
}

void TMemorySubscribeAdapter::Unsubscribe(host::TMarketDataItem* item, host::TOwner owner) {
  FHost.Check("subscribe.remove");
  static_cast<TMemoryItem*>(item)->Listeners().Remove(owner);
  FHost.events.Unsubscribed(item->Symbol());
}

TMemoryItem& TMemorySubscribeAdapter::Item(std::string_view symbol) {
  auto found = FItems.find(symbol);
  if (found == FItems.end()) {
    found = FItems.emplace(std::string(symbol), std::make_unique<TMemoryItem>(symbol)).first;
  }
  return *found->second;
}

const host::TInstrument* TMemoryMarketAdapter::FindInstrument(std::string_view symbol) {
  FHost.Check("market.instrument");
  const auto found = FHost.data.instruments.find(symbol);
  return found == FHost.data.instruments.end() ? nullptr : &found->second;
}

void TMemoryMarketAdapter::AddSpreadListener(TSpreadListener listener, host::TOwner owner) {
  FHost.Check("market.listen");
  FListeners.Add(std::move(listener), owner);
}

void TMemoryMarketAdapter::RemoveSpreadListener(host::TOwner owner) { FListeners.Remove(owner); }

void TMemoryMarketAdapter::Notify(std::span<const std::string> codes) {
  const TSpreadCodes changed(codes);
  FListeners.Notify(this, &changed);
}

}  // namespace algo::terminal
