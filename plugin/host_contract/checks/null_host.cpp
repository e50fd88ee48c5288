#include "plugin/host_contract/checks/null_host.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "plugin/host_contract/account_adapter.h"
#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/editor_manager.h"
#include "plugin/host_contract/installed_service.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/market_data.h"
#include "plugin/host_contract/message_box.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "plugin/host_contract/user_app_profile.h"
#include "plugin/host_contract/view_functions.h"

namespace algo::host::checks {

namespace {

using forms::TSpinEdit;
using forms::TTextEdit;

class TNullConfig final : public TCustomConfigManager {
 public:
  std::string CurrentSection() override { return {}; }
  std::string ReadText(std::string_view /*section*/, std::string_view /*key*/) override { return {}; }
  std::int32_t ReadInteger(std::string_view /*section*/, std::string_view /*key*/) override { return 0; }
  bool ReadBoolean(std::string_view /*section*/, std::string_view /*key*/) override { return false; }
  void Store(std::string_view /*section*/, std::string_view /*key*/, std::string_view /*value*/,
             bool /*writeThrough*/) override {}
  void AddListener(TListener /*listener*/, TOwner /*owner*/) override {}
  void RemoveListener(TOwner /*owner*/) override {}
};

class TNullLanguage final : public TCustomLanguageManager {
 public:
  std::string GetText(std::string_view tag, std::string_view id, std::int32_t /*language*/,
                      std::int32_t /*variant*/, std::int32_t /*options*/) override {
    return tag == Const_ResourceStringTag ? std::string(id) : std::string();
  }
};

class TNullProfile final : public TCustomUserAppProfile {
 public:
  bool HasRight(std::string_view /*name*/) override { return false; }
  std::int32_t UserKind() override { return 0; }
  bool UserFlag() override { return false; }
  std::string AccountText() override { return {}; }
  std::string UserIdentity() override { return {}; }
};

class TNullAccounts final : public TCustomAccountAdapter {
 public:
  bool IsKnown(std::string_view /*account*/) override { return false; }
};

class TNullMessages final : public TCustomMessageBoxCtrl {
 public:
  void ShowText(std::string_view /*text*/) override {}
  void ShowErrorCode(std::string_view /*code*/) override {}
};

class TNullSkins final : public TCustomLookAndFeelService {
 public:
  forms::TColor ColorOf(std::int32_t /*index*/, std::int32_t /*variant*/) override { return 0; }
  void AddListener(TListener /*listener*/, TOwner /*owner*/) override {}
  void RemoveListener(TOwner /*owner*/) override {}
};

class TNullChannels final : public TCustomGlobalChannelManager {
 public:
  void Subscribe(std::int32_t /*channel*/, THandler /*handler*/, TOwner /*owner*/) override {}
  void Unsubscribe(std::int32_t /*channel*/, TOwner /*owner*/) override {}
  void Post(std::int32_t /*channel*/, TChannelRecord* /*record*/) override {}
};

class TNullOrders final : public TCustomOrderAdapter {
 public:
  bool GetListSetting(std::string_view /*key*/, std::vector<std::string>& values) override {
    values.clear();
    return false;
  }
  TCustomClientOrder* NewClientOrder() override { return std::make_unique<TCustomClientOrder>().release(); }
  void FreeClientOrder(TCustomClientOrder* order) override {
    const std::unique_ptr<TCustomClientOrder> returned(order);
  }
  std::size_t OrderCount() override { return 0; }
  TCustomOrder* OrderAt(std::size_t /*index*/) override { return nullptr; }
};

class TNullActions final : public TCustomOrderActionManager {
 public:
  bool TakeAction(const void* /*sender*/, TCustomClientOrder* /*order*/, TOrderAction /*action*/,
                  std::int32_t /*argument*/) override {
    return false;
  }
};

class TEmptyItem final : public TMarketDataItem {
 public:
  explicit TEmptyItem(std::string symbol) : FSymbol(std::move(symbol)) {}

  std::string_view Symbol() const override { return FSymbol; }
  std::int32_t State() const override { return ItemEmpty; }
  bool HasField(std::int32_t /*field*/) const override { return false; }
  double FieldNumber(std::int32_t /*field*/) const override { return 0; }
  std::string_view FieldText(std::int32_t /*field*/) const override { return {}; }

 private:
  std::string FSymbol;
};

class TNullSubscriptions final : public TCustomSubscribeAdapter {
 public:
  TMarketDataItem* Subscribe(std::string_view symbol, std::string_view /*dataSet*/, bool /*live*/) override {
    const std::string name(symbol);
    return &FItems.try_emplace(name, name).first->second;
  }
  void AddListener(TMarketDataItem* /*item*/, TListener /*listener*/, TOwner /*owner*/) override {}
  void Unsubscribe(TMarketDataItem* /*item*/, TOwner /*owner*/) override {}

 private:
  std::map<std::string, TEmptyItem> FItems;
};

class TNullMarket final : public TCustomMarketAdapter {
 public:
  const TInstrument* FindInstrument(std::string_view /*symbol*/) override { return nullptr; }
  void AddSpreadListener(TSpreadListener /*listener*/, TOwner /*owner*/) override {}
  void RemoveSpreadListener(TOwner /*owner*/) override {}
};

class TNullEditors final : public TEditorManager {
 public:
  void RegisterAccountEditor(TTextEdit& /*control*/, std::string_view /*groupId*/, std::int32_t /*mode*/,
                             std::int32_t /*options*/) override {}
  void RegisterSymbolEditor(TTextEdit& /*control*/, std::string_view /*groupId*/, std::int32_t /*mode*/,
                            std::int32_t /*options*/) override {}
  void RegisterPriceEditor(TSpinEdit& /*control*/, std::string_view /*groupId*/) override {}
  void RegisterQuantityEditor(TSpinEdit& /*control*/, std::string_view /*groupId*/) override {}
  void RemoveAccountEditor(TTextEdit& /*control*/) override {}
  void RemoveSymbolEditor(TTextEdit& /*control*/) override {}
  void RemovePriceEditor(TSpinEdit& /*control*/) override {}
  void RemoveQuantityEditor(TSpinEdit& /*control*/) override {}
  void SetPriceSymbol(TSpinEdit& /*control*/, std::string_view /*symbol*/) override {}
  void SetQuantitySymbol(TSpinEdit& /*control*/, std::string_view /*symbol*/) override {}
  void SetAccountLayoutAccount(TTextEdit& /*control*/, std::string_view /*account*/) override {}
};

using TShownForms = std::vector<std::shared_ptr<forms::TDialogForm>>;

class TNullForm final : public forms::TDialogForm {
 public:
  explicit TNullForm(std::weak_ptr<TShownForms> shown) : FShown(std::move(shown)) {}

 protected:
  void RunModal() override { SetModalResult(forms::ModalCancel); }
  void Shown() override {
    if (const auto shown = FShown.lock()) shown->push_back(shared_from_this());
  }
  void Hidden() override {
    const auto self = shared_from_this();
    if (const auto shown = FShown.lock()) std::erase(*shown, self);
  }

 private:
  // The form may outlive the host that made it.
  std::weak_ptr<TShownForms> FShown;
};

class TNullViews final : public TCustomViewService {
 public:
  std::shared_ptr<forms::TDialogForm> MakeDialogForm(TIBaseView& /*provider*/) override {
    return std::make_shared<TNullForm>(FShown);
  }
  void Notify(TViewFrame& /*view*/, std::int32_t /*code*/) override {}

  // Out of the list first: a frame that goes with its form may close others.
  void ReleaseForms() { const TShownForms released = std::exchange(*FShown, {}); }

 private:
  std::shared_ptr<TShownForms> FShown = std::make_shared<TShownForms>();
};

}  // namespace

struct TNullHost::TServices {
  TInstalledService<TNullConfig> config;
  TInstalledService<TNullLanguage> language;
  TInstalledService<TNullProfile> profile;
  TInstalledService<TNullAccounts> accounts;
  TInstalledService<TNullMessages> messages;
  TInstalledService<TNullSkins> skins;
  TInstalledService<TNullChannels> channels;
  TInstalledService<TNullOrders> orders;
  TInstalledService<TNullActions> actions;
  TInstalledService<TNullSubscriptions> subscriptions;
  TInstalledService<TNullMarket> market;
  TInstalledService<TNullEditors> editors;
  TInstalledService<TNullViews> views;
};

TNullHost::TNullHost() : FServices(std::make_unique<TServices>()) {}

TNullHost::~TNullHost() { FServices->views->ReleaseForms(); }

}  // namespace algo::host::checks
