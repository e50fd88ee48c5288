#include "terminal/host/order_journal.h"

#include <memory>

namespace algo::terminal {

void TOrderJournal::Record(const TOrderEvent& event, const host::TCustomClientOrder& order) {
  FKeeper.KeepOrder(event, order);
  host::TCustomClientOrder* stored = FOrders.Find(order.key);
  if (stored == nullptr) {
    stored = &FOrders.Add(std::make_unique<host::TCustomClientOrder>(order));
  } else {
    stored->AssignContent(order);
  }
  FListeners.Tell(*stored);
}

}  // namespace algo::terminal
