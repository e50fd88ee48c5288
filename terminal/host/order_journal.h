#pragma once

// The only way in which orders enter the store and change there: first written to the storage, then put into
// the store, then announced to the listeners. So every order that a listener has seen is on record.

#include "terminal/host/listeners.h"
#include "terminal/host/order_storage.h"
#include "terminal/host/order_store.h"

namespace algo::terminal {

class TOrderJournal {
 public:
  using TOrderListeners = TListeners<const host::TCustomClientOrder&>;

  /// `orders` and `storage` outlive the journal.
  TOrderJournal(TOrderStore& orders, TOrderStorage& storage) : FOrders(orders), FStorage(storage) {}

  /// Adds the order, or gives the order with its key this content. Throws EError, with no effect on the order
  /// store, if it could not be written to the storage.
  void Record(const TOrderEvent& event, const host::TCustomClientOrder& order);

  /// Records an event that changes no order. Throws EError if it could not be written to the storage.
  void Note(const TOrderEvent& event, const host::TCustomClientOrder& order) {
    FStorage.StoreEvent(event, order);
  }

  TOrderStore& Orders() { return FOrders; }

  /// The listeners that are notified of each new or changed order, as it is in the store.
  TOrderListeners& Listeners() { return FListeners; }

 private:
  TOrderStore& FOrders;
  TOrderStorage& FStorage;
  TOrderListeners FListeners;
};

}  // namespace algo::terminal
