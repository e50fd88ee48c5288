#include "terminal/host/market_services.h"

#include <utility>

namespace algo::terminal {

host::TMarketDataItem* TMemorySubscribeAdapter::Subscribe(std::string_view symbol, std::string_view dataSet,
                                                          bool live) {
  // Who asks for what is at hand alone looks the item up; there is nothing to follow.
  const auto operation = live ? TServiceOperation::SubscribeAdd : TServiceOperation::MarketItem;
  return FHost.Call(operation, [&]() -> host::TMarketDataItem* {
    TMemoryItem& item = Item(symbol);
    FHost.events.Subscribed(symbol, dataSet, live);
    return &item;
  });
}

void TMemorySubscribeAdapter::AddListener(host::TMarketDataItem* item, TListener listener,
                                          host::TOwner owner) {
  FHost.Call(TServiceOperation::SubscribeListen,
             [&] { static_cast<TMemoryItem*>(item)->Listeners().Add(std::move(listener), owner); });
}

void TMemorySubscribeAdapter::Unsubscribe(host::TMarketDataItem* item, host::TOwner owner) {
  FHost.Call(TServiceOperation::SubscribeRemove, [&] {
    static_cast<TMemoryItem*>(item)->Listeners().Remove(owner);
    FHost.events.Unsubscribed(item->Symbol());
  });
}

TMemoryItem& TMemorySubscribeAdapter::Item(std::string_view symbol) {
  auto found = FItems.find(symbol);
  if (found == FItems.end()) {
    found = FItems.emplace(std::string(symbol), std::make_unique<TMemoryItem>(symbol)).first;
  }
  return *found->second;
}

const host::TInstrument* TMemoryMarketAdapter::FindInstrument(std::string_view symbol) {
  return FHost.Call(TServiceOperation::MarketInstrument, [&]() -> const host::TInstrument* {
    const auto found = FHost.data.instruments.find(symbol);
    if (found == FHost.data.instruments.end()) return nullptr;
    return &(FRecords.insert_or_assign(found->first, found->second).first->second);
  });
}

void TMemoryMarketAdapter::AddSpreadListener(TSpreadListener listener, host::TOwner owner) {
  FHost.Call(TServiceOperation::MarketListen, [&] { FListeners.Add(std::move(listener), owner); });
}

void TMemoryMarketAdapter::RemoveSpreadListener(host::TOwner owner) {
  FHost.Call(TServiceOperation::MarketUnlisten, [&] { FListeners.Remove(owner); });
}

void TMemoryMarketAdapter::Notify(std::span<const std::string> codes) {
  const TSpreadCodes changed(codes);
  FListeners.Notify(this, &changed);
}

}  // namespace algo::terminal
