#include "terminal/host/order_services.h"

#include <memory>

#include "terminal/host/order_rules.h"

namespace algo::terminal {

bool TMemoryOrderAdapter::GetListSetting(std::string_view key, std::vector<std::string>& values) {
  FHost.Check("orders.list");
  const auto list = FHost.data.lists.find(key);
  const bool configured = list != FHost.data.lists.end();
  if (configured) {
    values = list->second;
  } else {
    values.clear();
  }
  return configured;
}

host::TCustomClientOrder* TMemoryOrderAdapter::NewClientOrder() {
  FHost.Check("orders.new");
  return std::make_unique<host::TCustomClientOrder>().release();
}

void TMemoryOrderAdapter::FreeClientOrder(host::TCustomClientOrder* order) {
  const std::unique_ptr<host::TCustomClientOrder> returned(order);
}

std::size_t TMemoryOrderAdapter::OrderCount() {
  FHost.Check("orders.count");
  return FOrders.All().size();
}

host::TCustomOrder* TMemoryOrderAdapter::OrderAt(std::size_t index) {
  FHost.Check("orders.at");
  return index < FOrders.All().size() ? FOrders.All()[index].get() : nullptr;
}

bool TMemoryOrderActionManager::TakeAction(const void* /*sender*/, host::TCustomClientOrder* order,
                                           host::TOrderAction action, std::int32_t argument) {
  FHost.Check("action.take");
  if (order == nullptr) return false;
  const bool answer = FHost.data.accept;
  if (answer) CarryOut(*order, action);
  FHost.events.ActionTaken(*order, action, argument, answer);
  return answer;
}

void TMemoryOrderActionManager::CarryOut(const host::TCustomClientOrder& order, host::TOrderAction action) {
  const auto add = [this](const host::TCustomClientOrder& added) {
    FOrders.Add(std::make_unique<host::TCustomClientOrder>(added));
  };
  switch (action) {
    case host::TOrderAction::New:
      return add(AsNewOrder(order, FOrders.NextFreeKey()));
    case host::TOrderAction::Change:
      if (host::TCustomClientOrder* stored = FOrders.Find(order.key)) stored->AssignContent(order);
      return;
    case host::TOrderAction::Work:
      return add(AsChildOrder(order, FOrders.NextFreeKey()));
  }
}

}  // namespace algo::terminal
