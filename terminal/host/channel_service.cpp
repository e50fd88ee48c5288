#include "terminal/host/channel_service.h"

#include <utility>

namespace algo::terminal {

void TMemoryChannelManager::Subscribe(std::int32_t channel, THandler handler, host::TOwner owner) {
  FHost.Call(TServiceOperation::ChannelSubscribe, [&] { FChannels[channel].Add(std::move(handler), owner); });
}

void TMemoryChannelManager::Unsubscribe(std::int32_t channel, host::TOwner owner) {
  FHost.Call(TServiceOperation::ChannelUnsubscribe, [&] { FChannels[channel].Remove(owner); });
}

void TMemoryChannelManager::Post(std::int32_t channel, host::TChannelRecord* record) {
  FHost.Call(TServiceOperation::ChannelPost, [&] {
    Deliver(channel, record);
    if (record != nullptr) FHost.events.Posted(channel, *record);
  });
}

void TMemoryChannelManager::Deliver(std::int32_t channel, host::TChannelRecord* record) {
  FChannels[channel].Notify(this, record);
}

}  // namespace algo::terminal
