#pragma once

// The services around orders: the store as the module sees it, and actions on orders.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "terminal/host/host_context.h"
#include "terminal/host/order_journal.h"

namespace algo::terminal {

class TMemoryOrderAdapter final : public host::TCustomOrderAdapter {
 public:
  TMemoryOrderAdapter(const THostContext& host, TOrderStore& orders) : FHost(host), FOrders(orders) {}

  bool GetListSetting(std::string_view key, std::vector<std::string>& values) override;
  host::TCustomClientOrder* NewClientOrder() override;
  void FreeClientOrder(host::TCustomClientOrder* order) override;
  std::size_t OrderCount() override;
  host::TCustomOrder* OrderAt(std::size_t index) override;

 private:
  const THostContext& FHost;
  TOrderStore& FOrders;
};

/// Answers as the host data says, and records what it accepts: a new order is added, a change replaces the
/// order with that key if there is one, a work order adds a child. A refusal is recorded as an event.
class TMemoryOrderActionManager final : public host::TCustomOrderActionManager {
 public:
  TMemoryOrderActionManager(const THostContext& host, TOrderJournal& journal)
      : FHost(host), FJournal(journal) {}

  bool TakeAction(const void* sender, host::TCustomClientOrder* order, host::TOrderAction action,
                  std::int32_t argument) override;

 private:
  void CarryOut(const host::TCustomClientOrder& order, host::TOrderAction action);

  const THostContext& FHost;
  TOrderJournal& FJournal;
};

}  // namespace algo::terminal
