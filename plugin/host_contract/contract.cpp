// The parts of the contract that are code: one instance a service, the key functions of its classes, and the
// small helpers around them.

#include <utility>

#include "plugin/host_contract/account_adapter.h"
#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/editor_manager.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/market_data.h"
#include "plugin/host_contract/message_box.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "plugin/host_contract/user_app_profile.h"
#include "plugin/host_contract/view_functions.h"

namespace algo::host {

namespace {

template <class TService>
TService* installed = nullptr;

template <class TService>
constexpr const char* ServiceName = nullptr;
template <>
constexpr const char* ServiceName<TCustomConfigManager> = "TCustomConfigManager";
template <>
constexpr const char* ServiceName<TCustomLanguageManager> = "TCustomLanguageManager";
template <>
constexpr const char* ServiceName<TCustomUserAppProfile> = "TCustomUserAppProfile";
template <>
constexpr const char* ServiceName<TCustomOrderAdapter> = "TCustomOrderAdapter";
template <>
constexpr const char* ServiceName<TCustomOrderActionManager> = "TCustomOrderActionManager";
template <>
constexpr const char* ServiceName<TCustomGlobalChannelManager> = "TCustomGlobalChannelManager";
template <>
constexpr const char* ServiceName<TCustomMarketAdapter> = "TCustomMarketAdapter";
template <>
constexpr const char* ServiceName<TCustomSubscribeAdapter> = "TCustomSubscribeAdapter";
template <>
constexpr const char* ServiceName<TCustomLookAndFeelService> = "TCustomLookAndFeelService";
template <>
constexpr const char* ServiceName<TCustomAccountAdapter> = "TCustomAccountAdapter";
template <>
constexpr const char* ServiceName<TCustomMessageBoxCtrl> = "TCustomMessageBoxCtrl";
template <>
constexpr const char* ServiceName<TEditorManager> = "TEditorManager";
template <>
constexpr const char* ServiceName<TCustomViewService> = "TCustomViewService";

}  // namespace

template <class TService>
TService& THostService<TService>::GetInstance() {
  if (installed<TService> == nullptr) throw EServiceMissing(ServiceName<TService>);
  return *installed<TService>;
}

template <class TService>
TService* THostService<TService>::Install(TService* service) {
  return std::exchange(installed<TService>, service);
}

template class THostService<TCustomConfigManager>;
template class THostService<TCustomLanguageManager>;
template class THostService<TCustomUserAppProfile>;
template class THostService<TCustomOrderAdapter>;
template class THostService<TCustomOrderActionManager>;
template class THostService<TCustomGlobalChannelManager>;
template class THostService<TCustomMarketAdapter>;
template class THostService<TCustomSubscribeAdapter>;
template class THostService<TCustomLookAndFeelService>;
template class THostService<TCustomAccountAdapter>;
template class THostService<TCustomMessageBoxCtrl>;
template class THostService<TEditorManager>;
template class THostService<TCustomViewService>;

TCustomConfigManager::~TCustomConfigManager() = default;
TCustomLanguageManager::~TCustomLanguageManager() = default;
TCustomUserAppProfile::~TCustomUserAppProfile() = default;
TCustomOrderAdapter::~TCustomOrderAdapter() = default;
TCustomOrderActionManager::~TCustomOrderActionManager() = default;
TCustomGlobalChannelManager::~TCustomGlobalChannelManager() = default;
TCustomMarketAdapter::~TCustomMarketAdapter() = default;
TCustomSubscribeAdapter::~TCustomSubscribeAdapter() = default;
TCustomLookAndFeelService::~TCustomLookAndFeelService() = default;
TCustomAccountAdapter::~TCustomAccountAdapter() = default;
TCustomMessageBoxCtrl::~TCustomMessageBoxCtrl() = default;
TEditorManager::~TEditorManager() = default;
TCustomViewService::~TCustomViewService() = default;

TChannelRecord::~TChannelRecord() = default;
TOrderTakeActionRecord::~TOrderTakeActionRecord() = default;
TOrderCopyRecord::~TOrderCopyRecord() = default;
TMarketDataItem::~TMarketDataItem() = default;
TItemDictionary::~TItemDictionary() = default;
TSpreadDictionary::~TSpreadDictionary() = default;

void TOrderReturner::operator()(TCustomClientOrder* order) const noexcept {
  try {
    TCustomOrderAdapter::GetInstance().FreeClientOrder(order);
  } catch (...) {  // NOLINT(bugprone-empty-catch): see the contract of TOrderReturner
  }
}

TOwnedOrder MakeClientOrder() {
  TOwnedOrder order(TCustomOrderAdapter::GetInstance().NewClientOrder());
  if (!order) throw EError("The host gave no order");
  return order;
}

std::string ResourceText(std::string_view id) {
  return TCustomLanguageManager::GetInstance().GetText(Const_ResourceStringTag, id, 3, 0, 0);
}

std::shared_ptr<forms::TDialogForm> GetDialogForm(TIBaseView& provider) {
  auto form = TCustomViewService::GetInstance().MakeDialogForm(provider);
  if (!form) throw EError("The host gave no dialog form");
  return form;
}

void SendViewNotify(TViewFrame& view, std::int32_t code) {
  TCustomViewService::GetInstance().Notify(view, code);
}

}  // namespace algo::host
