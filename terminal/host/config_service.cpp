#include "terminal/host/config_service.h"

#include <utility>

#include "terminal/host/setting_text.h"

namespace algo::terminal {

std::string TMemoryConfigManager::CurrentSection() { return FHost.data.section; }

std::string TMemoryConfigManager::ReadText(std::string_view section, std::string_view key) {
  return FHost.Call(TServiceOperation::ConfigRead, [&] { return FHost.data.Setting(section, key); });
}

std::int32_t TMemoryConfigManager::ReadInteger(std::string_view section, std::string_view key) {
  return WholeNumberOf(ReadText(section, key));
}

bool TMemoryConfigManager::ReadBoolean(std::string_view section, std::string_view key) {
  return IsTrueText(ReadText(section, key));
}

void TMemoryConfigManager::Store(std::string_view section, std::string_view key, std::string_view value,
                                 bool writeThrough) {
  FHost.Call(TServiceOperation::ConfigStore, [&] {
    FHost.storage.StoreSetting(section, key, value);
    FHost.data.config[std::string(section)].insert_or_assign(std::string(key), std::string(value));
    FHost.events.Stored(section, key, value, writeThrough);
  });
}

void TMemoryConfigManager::AddListener(std::function<void()> listener, host::TOwner owner) {
  FHost.Call(TServiceOperation::ConfigListen, [&] { FListeners.Add(std::move(listener), owner); });
}

void TMemoryConfigManager::RemoveListener(host::TOwner owner) {
  FHost.Call(TServiceOperation::ConfigUnlisten, [&] { FListeners.Remove(owner); });
}

}  // namespace algo::terminal
