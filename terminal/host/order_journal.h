#pragma once

// The one way by which orders come into the store and change there: kept first, then stored, then told. So an
// order that anybody was told of is one that is on record.

#include "terminal/host/listeners.h"
#include "terminal/host/order_storage.h"
#include "terminal/host/order_store.h"

namespace algo::terminal {

class TOrderJournal {
 public:
  using TOrderListeners = TListeners<const host::TCustomClientOrder&>;

  /// Both outlive the ledger.
  TOrderJournal(TOrderStore& orders, TOrderStorage& keeper) : FOrders(orders), FKeeper(keeper) {}

  /// Adds the order, or gives the stored order of its key this content. Throws EError, with no effect on the
  /// store, when it could not be kept.
  void Record(const TOrderEvent& event, const host::TCustomClientOrder& order);

  /// Puts an event on record that changes no order. Throws EError when it could not be kept.
  void Note(const TOrderEvent& event, const host::TCustomClientOrder& order) {
    FKeeper.KeepEvent(event, order);
  }

  TOrderStore& Orders() { return FOrders; }

  /// Those who are told of each order that came or changed, as it is in the store.
  TOrderListeners& Listeners() { return FListeners; }

 private:
  TOrderStore& FOrders;
  TOrderStorage& FKeeper;
  TOrderListeners FListeners;
};

}  // namespace algo::terminal
