#pragma once

// The order store, and the settings of the trade platform that are lists.

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "plugin/host_contract/orders.h"
#include "plugin/host_contract/service.h"

namespace algo::host {

class ALGO_SHARED TCustomOrderAdapter : public THostService<TCustomOrderAdapter> {
 public:
  virtual ~TCustomOrderAdapter();

  /// Puts the values configured under `key` into `values`; false, with `values` empty, when the key is not
  /// configured. The module asks for "ALGO/Exchange", and for "ALGO/ALGOType/" and "ALGO/OrderType/" followed
  /// by an exchange code.
  /// [module → host, while a provider lives]
  virtual bool GetListSetting(std::string_view key, std::vector<std::string>& values) = 0;

  /// Makes an empty order that is in no store.
  /// [module → host, while a provider lives]
  virtual TCustomClientOrder* NewClientOrder() = 0;
  /// Takes back an order that NewClientOrder made; every one must be given back.
  /// [module → host, once for each order made]
  virtual void FreeClientOrder(TCustomClientOrder* order) = 0;

  /// The orders of the store, by index from 0. The store may change between two calls.
  /// [module → host, while a provider lives]
  virtual std::size_t OrderCount() = 0;
  /// The order at that place, the host's own; nullptr when the place is gone.
  /// [module → host, while a provider lives]
  virtual TCustomOrder* OrderAt(std::size_t index) = 0;
};

/// Gives an order back to the adapter that made it. When the adapter fails to take it back, nothing more is
/// done: there is nobody to report it to.
struct TOrderReturner {
  void operator()(TCustomClientOrder* order) const noexcept;
};

/// An order asked of the adapter, given back on every path.
using TOwnedOrder = std::unique_ptr<TCustomClientOrder, TOrderReturner>;

/// Asks the adapter for a new order.
/// [module → host, while a provider lives]
TOwnedOrder MakeClientOrder();

}  // namespace algo::host
