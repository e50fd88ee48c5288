#include "plugin/host_contract/checks/strict_market.h"

#include <algorithm>
#include <utility>

namespace algo::host::checks {

TMarketDataItem* TStrictSubscriptions::Subscribe(std::string_view symbol, std::string_view dataSet,
                                                 bool live) {
  TMarketDataItem* item = FInner.Subscribe(symbol, dataSet, live);
  if (item != nullptr) FOwners.try_emplace(item);
  return item;
}

void TStrictSubscriptions::AddListener(TMarketDataItem* item, TListener listener, TOwner owner) {
  FViolations.Require(FOwners.contains(item), "a listener is for an item that was not subscribed");
  FViolations.Require(owner != nullptr, "a listener to an item has no owner");
  FViolations.Require(static_cast<bool>(listener), "a listener to an item is empty");
  FInner.AddListener(item, std::move(listener), owner);
  FOwners[item].insert(owner);
}

void TStrictSubscriptions::Unsubscribe(TMarketDataItem* item, TOwner owner) {
  const auto found = FOwners.find(item);
  FViolations.Require(found != FOwners.end() && found->second.contains(owner),
                      "an item is unsubscribed by an owner that does not listen to it");
  // Out of the register first: in the middle of the call the owner may follow the item anew.
  found->second.erase(owner);
  if (found->second.empty()) FOwners.erase(found);
  try {
    FInner.Unsubscribe(item, owner);
  } catch (...) {
    FOwners[item].insert(owner);
    throw;
  }
}

std::size_t TStrictSubscriptions::Items() const {
  return static_cast<std::size_t>(
      std::count_if(FOwners.begin(), FOwners.end(), [](const auto& item) { return !item.second.empty(); }));
}

void TStrictMarket::AddSpreadListener(TSpreadListener listener, TOwner owner) {
  FListeners.Add(listener, owner, [&] { FInner.AddSpreadListener(std::move(listener), owner); });
}

void TStrictMarket::RemoveSpreadListener(TOwner owner) {
  FListeners.Remove(owner, [&] { FInner.RemoveSpreadListener(owner); });
}

}  // namespace algo::host::checks
