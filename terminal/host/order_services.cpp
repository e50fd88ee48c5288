#include "terminal/host/order_services.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "terminal/host/order_rules.h"

namespace algo::terminal {

namespace {

std::string_view NameOf(host::TOrderAction action) {
  switch (action) {
    case host::TOrderAction::New:
      return "new";
    case host::TOrderAction::Change:
      return "change";
    case host::TOrderAction::Work:
      return "work";
  }
  return "unknown";
}

}  // namespace

bool TMemoryOrderAdapter::GetListSetting(std::string_view key, std::vector<std::string>& values) {
  using TList = std::optional<std::vector<std::string>>;
  TList list = FHost.Call(TServiceOperation::OrdersList, [&]() -> TList {
    const auto found = FHost.data.lists.find(key);
    return found == FHost.data.lists.end() ? TList() : found->second;
  });
  const bool configured = list.has_value();
  values = std::move(list).value_or(std::vector<std::string>());
  return configured;
}

host::TCustomClientOrder* TMemoryOrderAdapter::NewClientOrder() {
  return FHost.Call(TServiceOperation::OrdersNew,
                    [] { return std::make_unique<host::TCustomClientOrder>().release(); });
}

void TMemoryOrderAdapter::FreeClientOrder(host::TCustomClientOrder* order) {
  FHost.Call(TServiceOperation::OrdersFree,
             [order] { const std::unique_ptr<host::TCustomClientOrder> returned(order); });
}

std::size_t TMemoryOrderAdapter::OrderCount() {
  return FHost.Call(TServiceOperation::OrdersCount, [this] { return FOrders.All().size(); });
}

host::TCustomOrder* TMemoryOrderAdapter::OrderAt(std::size_t index) {
  return FHost.Call(TServiceOperation::OrdersAt, [this, index]() -> host::TCustomOrder* {
    return index < FOrders.All().size() ? FOrders.All()[index].get() : nullptr;
  });
}

bool TMemoryOrderActionManager::TakeAction(const void* /*sender*/, host::TCustomClientOrder* order,
                                           host::TOrderAction action, std::int32_t argument) {
  return FHost.Call(TServiceOperation::ActionTake, [&] {
    if (order == nullptr) return false;
    const bool answer = FHost.data.accept;
    if (answer) {
      CarryOut(*order, action);
    } else {
      FJournal.Note({FHost.data.profile.user, std::string(NameOf(action)), "refused"}, *order);
    }
    FHost.events.ActionTaken(*order, action, argument, answer);
    return answer;
  });
}

void TMemoryOrderActionManager::CarryOut(const host::TCustomClientOrder& order, host::TOrderAction action) {
  const TOrderEvent event{FHost.data.profile.user, std::string(NameOf(action)), "accepted"};
  TOrderStore& orders = FJournal.Orders();
  switch (action) {
    case host::TOrderAction::New:
      return FJournal.Record(event, AsNewOrder(order, orders.NextFreeKey()));
    case host::TOrderAction::Change:
      // An order that is not in the store was accepted on behalf of somebody else, who carries it out.
      if (const auto* stored = orders.Find(order.key)) {
        return FJournal.Record(event, FHost.data.worksOrders ? AsChangedOrder(*stored, order) : order);
      }
      return FJournal.Note(event, order);
    case host::TOrderAction::Work:
      return FJournal.Record(event, AsChildOrder(order, orders.NextFreeKey()));
  }
}

}  // namespace algo::terminal
