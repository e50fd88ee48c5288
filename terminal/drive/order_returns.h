#pragma once

// In front of the order adapter: an order that the module gives back passes the host's point at once, while
// the strict layer behind it keeps the order for a while before the host's own service sees it again.

#include <cstddef>
#include <string_view>
#include <vector>

#include "plugin/host_contract/order_adapter.h"
#include "terminal/host/memory_host.h"

namespace algo::terminal::drive {

class TOrderReturns final : public host::TCustomOrderAdapter {
 public:
  /// Stands in front of the adapter that is installed now. That one and the host outlive it.
  explicit TOrderReturns(TMemoryHost& host) : FHost(host), FInner(host::TCustomOrderAdapter::GetInstance()) {}
  ~TOrderReturns() override {
    for (host::TCustomClientOrder* order : FRefused) FInner.FreeClientOrder(order);
  }
  TOrderReturns(const TOrderReturns&) = delete;
  TOrderReturns& operator=(const TOrderReturns&) = delete;

  bool GetListSetting(std::string_view key, std::vector<std::string>& values) override {
    return FInner.GetListSetting(key, values);
  }
  host::TCustomClientOrder* NewClientOrder() override { return FInner.NewClientOrder(); }
  void FreeClientOrder(host::TCustomClientOrder* order) override {
    try {
      FHost.CallInFront(TServiceOperation::OrdersFree, [&] { FInner.FreeClientOrder(order); });
    } catch (...) {
      FRefused.push_back(order);
      throw;
    }
  }
  std::size_t OrderCount() override { return FInner.OrderCount(); }
  host::TCustomOrder* OrderAt(std::size_t index) override { return FInner.OrderAt(index); }

 private:
  TMemoryHost& FHost;
  host::TCustomOrderAdapter& FInner;
  std::vector<host::TCustomClientOrder*> FRefused;  ///< given back while that failed; freed at the end
};

}  // namespace algo::terminal::drive
