#pragma once

// Registering with the host's services so that nothing stays registered: each function registers one thing
// and returns the object that takes it back. A handler is dead from then on, also where the service failed at
// taking it back and goes on calling it. What a service throws while it registers runs on to the caller, with
// nothing registered.

#include <cstdint>
#include <string_view>

#include "forms/spin_edit.h"
#include "forms/text_edit.h"
#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/market_data.h"
#include "plugin/host_contract/registration.h"

namespace algo::host {

// Handlers; see the service that each of them is handed to.
// [module → host, while a provider lives]

[[nodiscard]] ALGO_SHARED TRegistration ListenToChannel(std::int32_t channel,
                                                        TCustomGlobalChannelManager::THandler handler,
                                                        TOwner owner);
[[nodiscard]] ALGO_SHARED TRegistration ListenToSettings(TCustomConfigManager::TListener listener,
                                                         TOwner owner);
[[nodiscard]] ALGO_SHARED TRegistration ListenToSkins(TCustomLookAndFeelService::TListener listener,
                                                      TOwner owner);
[[nodiscard]] ALGO_SHARED TRegistration ListenToSpreads(TCustomMarketAdapter::TSpreadListener listener,
                                                        TOwner owner);
/// Taking it back ends the owner's interest in the item, which may be gone afterwards.
[[nodiscard]] ALGO_SHARED TRegistration ListenToItem(TMarketDataItem* item,
                                                     TCustomSubscribeAdapter::TListener listener,
                                                     TOwner owner);

// Editors; see TEditorManager. The control outlives the registration.

[[nodiscard]] ALGO_SHARED TRegistration RegisterAccountEditor(forms::TTextEdit& control,
                                                              std::string_view groupId, std::int32_t mode,
                                                              std::int32_t options);
[[nodiscard]] ALGO_SHARED TRegistration RegisterSymbolEditor(forms::TTextEdit& control,
                                                             std::string_view groupId, std::int32_t mode,
                                                             std::int32_t options);
[[nodiscard]] ALGO_SHARED TRegistration RegisterPriceEditor(forms::TSpinEdit& control,
                                                            std::string_view groupId);
[[nodiscard]] ALGO_SHARED TRegistration RegisterQuantityEditor(forms::TSpinEdit& control,
                                                               std::string_view groupId);

}  // namespace algo::host
