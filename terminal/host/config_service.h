#pragma once

// The settings service: reads and writes the settings of the host data.

#include <functional>
#include <string>
#include <string_view>

#include "plugin/host_contract/config_manager.h"
#include "terminal/host/host_context.h"
#include "terminal/host/listeners.h"

namespace algo::terminal {

class TMemoryConfigManager final : public host::TCustomConfigManager {
 public:
  explicit TMemoryConfigManager(const THostContext& host) : FHost(host) {}

  std::string CurrentSection() override;
  std::string ReadText(std::string_view section, std::string_view key) override;
  std::int32_t ReadInteger(std::string_view section, std::string_view key) override;
  bool ReadBoolean(std::string_view section, std::string_view key) override;
  void Store(std::string_view section, std::string_view key, std::string_view value,
             bool writeThrough) override;
  void AddListener(std::function<void()> listener, host::TOwner owner) override;
  void RemoveListener(host::TOwner owner) override;

  /// Notifies the listeners that settings changed.
  void Notify() { FListeners.Notify(); }

 private:
  const THostContext& FHost;
  TListeners<> FListeners;
};

}  // namespace algo::terminal
