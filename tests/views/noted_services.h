#pragma once

// Layers around the host's services that note who starts and stops listening, in one log, and pass everything
// on. The host's own events tell of editors and subscriptions, but not of listeners.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/market_data.h"

namespace algo::tests {

using TLog = std::vector<std::string>;

class TNotedConfig : public host::TCustomConfigManager {
 public:
  explicit TNotedConfig(host::TCustomConfigManager& inner, TLog& log) : FInner(inner), FLog(log) {}
  std::string CurrentSection() override { return FInner.CurrentSection(); }
  std::string ReadText(std::string_view section, std::string_view key) override {
    return FInner.ReadText(section, key);
  }
  std::int32_t ReadInteger(std::string_view section, std::string_view key) override {
    return FInner.ReadInteger(section, key);
  }
  bool ReadBoolean(std::string_view section, std::string_view key) override {
    return FInner.ReadBoolean(section, key);
  }
  void Store(std::string_view section, std::string_view key, std::string_view value, bool through) override {
    FInner.Store(section, key, value, through);
  }
  void AddListener(std::function<void()> listener, host::TOwner owner) override {
    FLog.emplace_back("listen to settings");
    FInner.AddListener(std::move(listener), owner);
  }
  void RemoveListener(host::TOwner owner) override {
    FLog.emplace_back("leave settings");
    FInner.RemoveListener(owner);
  }

 private:
  host::TCustomConfigManager& FInner;
  TLog& FLog;
};

class TNotedChannels : public host::TCustomGlobalChannelManager {
 public:
  explicit TNotedChannels(host::TCustomGlobalChannelManager& inner, TLog& log) : FInner(inner), FLog(log) {}
  void Subscribe(std::int32_t channel, THandler handler, host::TOwner owner) override {
    FLog.push_back("listen to channel " + std::to_string(channel));
    FInner.Subscribe(channel, std::move(handler), owner);
  }
  void Unsubscribe(std::int32_t channel, host::TOwner owner) override {
    FLog.push_back("leave channel " + std::to_string(channel));
    FInner.Unsubscribe(channel, owner);
  }
  void Post(std::int32_t channel, host::TChannelRecord* record) override { FInner.Post(channel, record); }

 private:
  host::TCustomGlobalChannelManager& FInner;
  TLog& FLog;
};

class TNotedMarket : public host::TCustomMarketAdapter {
 public:
  explicit TNotedMarket(host::TCustomMarketAdapter& inner, TLog& log) : FInner(inner), FLog(log) {}
  const host::TInstrument* FindInstrument(std::string_view symbol) override {
    return FInner.FindInstrument(symbol);
  }
  void AddSpreadListener(TSpreadListener listener, host::TOwner owner) override {
    FLog.emplace_back("listen to spreads");
    FInner.AddSpreadListener(std::move(listener), owner);
  }
  void RemoveSpreadListener(host::TOwner owner) override {
    FLog.emplace_back("leave spreads");
    FInner.RemoveSpreadListener(owner);
  }

 private:
  host::TCustomMarketAdapter& FInner;
  TLog& FLog;
};

class TNotedSkins : public host::TCustomLookAndFeelService {
 public:
  explicit TNotedSkins(host::TCustomLookAndFeelService& inner, TLog& log) : FInner(inner), FLog(log) {}
  forms::TColor ColorOf(std::int32_t index, std::int32_t variant) override {
    FLog.push_back("colour " + std::to_string(index));
    return FInner.ColorOf(index, variant);
  }
  void AddListener(std::function<void(std::string_view)> listener, host::TOwner owner) override {
    FLog.emplace_back("listen to skins");
    FInner.AddListener(std::move(listener), owner);
  }
  void RemoveListener(host::TOwner owner) override {
    FLog.emplace_back("leave skins");
    FInner.RemoveListener(owner);
  }

 private:
  host::TCustomLookAndFeelService& FInner;
  TLog& FLog;
};

}  // namespace algo::tests
