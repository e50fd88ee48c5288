#pragma once

// The strict layers of the services that orders pass through: the order adapter, the order action manager and
// the channels. All of them look an order up in one journal.

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/checks/listener_registry.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/order_adapter.h"

namespace algo::host::checks {

/// The orders that the module has of the adapter, and the last ones that it gave back. Those are kept for a
/// while, emptied, before they really go: as long as their memory is not used anew, a late use is certain to
/// be one.
struct TOrderJournal {
  std::set<const TCustomOrder*> held;
  std::deque<TCustomClientOrder*> givenBack;

  bool WasGivenBack(const TCustomOrder* order) const;
};

class TStrictOrders final : public TCustomOrderAdapter {
 public:
  TStrictOrders(TCustomOrderAdapter& inner, TOrderJournal& journal, const TViolations& violations)
      : FInner(inner), FJournal(journal), FViolations(violations) {}
  ~TStrictOrders() override;

  bool GetListSetting(std::string_view key, std::vector<std::string>& values) override {
    return FInner.GetListSetting(key, values);
  }
  TCustomClientOrder* NewClientOrder() override;
  void FreeClientOrder(TCustomClientOrder* order) override;
  std::size_t OrderCount() override { return FInner.OrderCount(); }
  TCustomOrder* OrderAt(std::size_t index) override { return FInner.OrderAt(index); }

 private:
  void FreeOldest();

  TCustomOrderAdapter& FInner;
  TOrderJournal& FJournal;
  const TViolations& FViolations;
};

class TStrictActions final : public TCustomOrderActionManager {
 public:
  TStrictActions(TCustomOrderActionManager& inner, const TOrderJournal& journal,
                 const TViolations& violations)
      : FInner(inner), FJournal(journal), FViolations(violations) {}

  bool TakeAction(const void* sender, TCustomClientOrder* order, TOrderAction action,
                  std::int32_t argument) override;

 private:
  TCustomOrderActionManager& FInner;
  const TOrderJournal& FJournal;
  const TViolations& FViolations;
};

class TStrictChannels final : public TCustomGlobalChannelManager {
 public:
  TStrictChannels(TCustomGlobalChannelManager& inner, const TOrderJournal& journal,
                  const TViolations& violations)
      : FInner(inner), FJournal(journal), FViolations(violations) {}

  void Subscribe(std::int32_t channel, THandler handler, TOwner owner) override;
  void Unsubscribe(std::int32_t channel, TOwner owner) override;
  void Post(std::int32_t channel, TChannelRecord* record) override;

  /// The handlers on all channels.
  std::size_t Handlers() const;

 private:
  TListenerRegistry& OwnersOf(std::int32_t channel);
  const TCustomOrder* OrderIn(std::int32_t channel, const TChannelRecord& record) const;

  TCustomGlobalChannelManager& FInner;
  const TOrderJournal& FJournal;
  const TViolations& FViolations;
  std::map<std::int32_t, TListenerRegistry> FOwners;
};

}  // namespace algo::host::checks
