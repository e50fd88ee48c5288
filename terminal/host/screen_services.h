#pragma once

// The services whose work the user sees: messages and skins.

#include <cstdint>
#include <functional>
#include <string_view>

#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/message_box.h"
#include "terminal/host/host_context.h"
#include "terminal/host/listeners.h"

namespace algo::terminal {

class TMemoryMessageBoxCtrl final : public host::TCustomMessageBoxCtrl {
 public:
  explicit TMemoryMessageBoxCtrl(const THostContext& host) : FHost(host) {}

  void ShowText(std::string_view text) override;
  void ShowErrorCode(std::string_view code) override;

 private:
  const THostContext& FHost;
};

class TMemoryLookAndFeelService final : public host::TCustomLookAndFeelService {
 public:
  explicit TMemoryLookAndFeelService(const THostContext& host) : FHost(host) {}

  /// A colour that the skin lacks is black.
  forms::TColor ColorOf(std::int32_t index, std::int32_t variant) override;
  void AddListener(std::function<void(std::string_view skin)> listener, host::TOwner owner) override;
  void RemoveListener(host::TOwner owner) override;

  /// Notifies the listeners that the skin with that name is now in use.
  void Notify(std::string_view skin) { FListeners.Notify(skin); }

 private:
  const THostContext& FHost;
  TListeners<std::string_view> FListeners;
};

}  // namespace algo::terminal
