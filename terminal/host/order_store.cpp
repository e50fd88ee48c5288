#include "terminal/host/order_store.h"

#include <cassert>
#include <utility>

namespace algo::terminal {

host::TCustomClientOrder* TOrderStore::Find(std::string_view key) const {
  const auto found = FByKey.find(key);
  return found == FByKey.end() ? nullptr : found->second;
}

host::TCustomClientOrder& TOrderStore::Add(std::unique_ptr<host::TCustomClientOrder> order) {
  assert(order && Find(order->key) == nullptr);
  host::TCustomClientOrder& added = *order;
  FOrders.push_back(std::move(order));
  FByKey.emplace(added.key, &added);
  return added;
}

std::string TOrderStore::NextFreeKey() {
  std::string key;
  do {
    key = "N" + std::to_string(FNextNumber++);
  } while (FByKey.contains(key));
  return key;
}

}  // namespace algo::terminal
