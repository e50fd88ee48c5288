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
  virtual bool GetListSetting(std::string_view key, std::vector<std::string>& values) = 0;

  /// Makes an empty order that is in no store. It must be given back with FreeClientOrder.
  virtual TCustomClientOrder* NewClientOrder() = 0;
  virtual void FreeClientOrder(TCustomClientOrder* order) = 0;

  /// The orders of the store, by index from 0. The store may change between two calls.
  virtual std::size_t OrderCount() = 0;
  /// The order at that place, the host's own; nullptr when the place is gone.
  virtual TCustomOrder* OrderAt(std::size_t index) = 0;
};

/// Gives an order back to the adapter that made it. An adapter that fails to take it back is left alone:
/// there is nobody left to tell.
struct TOrderReturner {
  void operator()(TCustomClientOrder* order) const noexcept;
};

/// An order asked of the adapter, given back on every path.
using TOwnedOrder = std::unique_ptr<TCustomClientOrder, TOrderReturner>;

/// Asks the adapter for a new order.
TOwnedOrder MakeClientOrder();

}  // namespace algo::host
