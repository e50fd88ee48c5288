#pragma once

// The market-data services: live items by symbol, instruments, and spread tables.

#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "plugin/host_contract/market_data.h"
#include "terminal/host/host_context.h"
#include "terminal/host/listeners.h"
#include "terminal/host/market_item.h"

namespace algo::terminal {

class TMemorySubscribeAdapter final : public host::TCustomSubscribeAdapter {
 public:
  explicit TMemorySubscribeAdapter(const THostContext& host) : FHost(host) {}

  /// All data sets hold the same items, and an item is never removed.
  host::TMarketDataItem* Subscribe(std::string_view symbol, std::string_view dataSet, bool live) override;
  void AddListener(host::TMarketDataItem* item, TListener listener, host::TOwner owner) override;
  void Unsubscribe(host::TMarketDataItem* item, host::TOwner owner) override;

  /// The item of the symbol, created in state 0 if necessary.
  TMemoryItem& Item(std::string_view symbol);

  /// Notifies the listeners of `item` that the items in `changed`, which need not include it, changed.
  void Notify(TMemoryItem& item, const host::TItemDictionary& changed) {
    item.Listeners().Notify(this, &changed);
  }

 private:
  const THostContext& FHost;
  std::map<std::string, std::unique_ptr<TMemoryItem>, std::less<>> FItems;
};

class TMemoryMarketAdapter final : public host::TCustomMarketAdapter {
 public:
  explicit TMemoryMarketAdapter(const THostContext& host) : FHost(host) {}

  const host::TInstrument* FindInstrument(std::string_view symbol) override;
  void AddSpreadListener(TSpreadListener listener, host::TOwner owner) override;
  void RemoveSpreadListener(host::TOwner owner) override;

  /// Notifies the listeners that the spread tables with these codes changed.
  void Notify(std::span<const std::string> codes);

 private:
  const THostContext& FHost;
  // What was handed out stays, also when the host's data are replaced in the middle of a call.
  std::map<std::string, host::TInstrument, std::less<>> FRecords;
  TListeners<const void*, const host::TSpreadDictionary*> FListeners;
};

}  // namespace algo::terminal
