#pragma once

// The view provider: what the host sees of the module. It places the algo order entry view in the host's
// menu, makes its instances, and has the order actions answered that are posted on the order action channel
// for orders of this module (order_actions.h).

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "plugin/host_contract/base_view.h"
#include "plugin/host_contract/registration.h"
#include "plugin/order_actions.h"

namespace algo::plugin {

/// The name under which the class registry knows the provider.
inline constexpr std::string_view ProviderClassName = "TIAlgoEntryOrder";

class TIAlgoEntryOrder : public host::TIBaseView {
 public:
  /// Subscribes to the order action channel; throws what the host's services throw.
  explicit TIAlgoEntryOrder(const void* owner);
  ~TIAlgoEntryOrder() override;

  std::string GetName() override;
  std::int32_t GetViewID() override;
  std::int32_t GetMenuLevel() override;
  std::int32_t GetMenuIndex(std::int32_t level) override;
  std::int32_t GetMenuID(std::int32_t level) override;
  std::string GetMenuCaption(std::int32_t level) override;
  std::int32_t GetMenuGroupIndex(std::int32_t level) override;
  bool GetIsVisible() override;
  bool GetDefaultCaption(std::string& caption) override;
  bool GetDefaultSize(std::int32_t& width, std::int32_t& height) override;
  host::TInstanceHandle OpenNewInstance() override;
  void CloseInstance(host::TInstanceHandle instance) override;
  bool SetLanguage(host::TInstanceHandle instance, std::int32_t language) override;

 private:
  /// Gone with the provider, so that what runs in its name can see it.
  std::shared_ptr<const bool> FAlive = std::make_shared<const bool>(true);
  std::shared_ptr<TOrderActions> FActions;
  host::TRegistration FListening;  ///< to the order actions
};

}  // namespace algo::plugin
