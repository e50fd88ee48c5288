#include "terminal/host/order_journal.h"

#include <memory>

namespace algo::terminal {

void TOrderJournal::Record(const TOrderEvent& event, const host::TCustomClientOrder& order) {
  FStorage.StoreOrder(event, order);
  host::TCustomClientOrder* stored = FOrders.Find(order.key);
  if (stored == nullptr) {
    stored = &FOrders.Add(std::make_unique<host::TCustomClientOrder>(order));
  } else {
    stored->AssignContent(order);
  }
  FListeners.Notify(*stored);
}

}  // namespace algo::terminal
