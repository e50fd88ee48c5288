#pragma once

// The channels between views.

#include <cstdint>
#include <map>

#include "plugin/host_contract/channel_manager.h"
#include "terminal/host/host_context.h"
#include "terminal/host/listeners.h"

namespace algo::terminal {

class TMemoryChannelManager final : public host::TCustomGlobalChannelManager {
 public:
  explicit TMemoryChannelManager(const THostContext& host) : FHost(host) {}

  void Subscribe(std::int32_t channel, THandler handler, host::TOwner owner) override;
  void Unsubscribe(std::int32_t channel, host::TOwner owner) override;
  /// Reported as an event once the record was delivered.
  void Post(std::int32_t channel, host::TChannelRecord* record) override;

  /// Delivers `record` to every subscriber.
  void Deliver(std::int32_t channel, host::TChannelRecord* record);

 private:
  const THostContext& FHost;
  std::map<std::int32_t, TListeners<const void*, host::TChannelRecord*>> FChannels;
};

}  // namespace algo::terminal
