#pragma once

// The strict layers of the market-data services.

#include <cstddef>
#include <map>
#include <set>
#include <string_view>

#include "plugin/host_contract/checks/listener_registry.h"
#include "plugin/host_contract/market_data.h"

namespace algo::host::checks {

class TStrictSubscriptions final : public TCustomSubscribeAdapter {
 public:
  TStrictSubscriptions(TCustomSubscribeAdapter& inner, const TViolations& violations)
      : FInner(inner), FViolations(violations) {}

  TMarketDataItem* Subscribe(std::string_view symbol, std::string_view dataSet, bool live) override;
  void AddListener(TMarketDataItem* item, TListener listener, TOwner owner) override;
  void Unsubscribe(TMarketDataItem* item, TOwner owner) override;

  /// The items that somebody listens to.
  std::size_t Items() const;

 private:
  // Who listens to an item that was handed out. An item goes from here with its last listener, since it may
  // be gone then.
  std::map<const TMarketDataItem*, std::set<TOwner>> FOwners;

  TCustomSubscribeAdapter& FInner;
  const TViolations& FViolations;
};

class TStrictMarket final : public TCustomMarketAdapter {
 public:
  TStrictMarket(TCustomMarketAdapter& inner, const TViolations& violations)
      : FInner(inner), FListeners(violations, "the spread tables") {}

  const TInstrument* FindInstrument(std::string_view symbol) override {
    return FInner.FindInstrument(symbol);
  }
  void AddSpreadListener(TSpreadListener listener, TOwner owner) override;
  void RemoveSpreadListener(TOwner owner) override;

  std::size_t Listeners() const { return FListeners.Count(); }

 private:
  TCustomMarketAdapter& FInner;
  TListenerRegistry FListeners;
};

}  // namespace algo::host::checks
