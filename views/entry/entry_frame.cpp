// How an entry frame comes to life, follows the configuration, and goes.

#include "views/entry/entry_frame.h"

#include <array>
#include <utility>

#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/editor_manager.h"
#include "plugin/host_contract/listen.h"
#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/user_app_profile.h"
#include "plugin/host_contract/view_functions.h"
#include "text/number_text.h"
#include "text/text.h"

namespace algo::views {

namespace {

constexpr std::int32_t StartLanguage = 3;
constexpr std::int32_t SideFontSize = 36;
constexpr std::string_view PlatformSection = "VANTORIX_PLATFORM";

// The trailing arguments with which look-up editors are registered.
constexpr std::int32_t LookUpMode = 0;
constexpr std::int32_t LookUpOptions = 1;

// A user of this kind without the flag works on the profile's account and sees no account field.
constexpr std::int32_t SingleAccountKind = 2;

// The scale settings up to which each caption size holds; the edges are not even on purpose.
struct TScaleStep {
  std::int32_t upTo;
  std::int32_t fontSize;
};
constexpr std::array ScaleSteps{TScaleStep{100, 8}, TScaleStep{114, 10}, TScaleStep{125, 11},
                                TScaleStep{134, 12}};
constexpr std::int32_t LargestFontSize = 13;

// Editors that the host steps by lot or tick, in the order in which they are registered.
constexpr std::array QuantityFields{TField::edtQty,     TField::edtMinQty,  TField::edtStopQty,
                                    TField::edtShowQty, TField::edtJoinQty, TField::edtMaxShowQty};
constexpr std::array AlgoPriceFields{TField::edtThrPx1, TField::edtThrPx2, TField::edtStopLossPx,
                                     TField::edtWPx};

host::TEditorManager& Editors() { return host::TEditorManager::GetInstance(); }

}  // namespace

TAlgoOrderEntryFrame::TAlgoOrderEntryFrame(std::string className)
    : TViewFrame(std::move(className), "lcAlgoOrder") {
  // Making the form is one call from outside: what its handlers set off fails, if it fails, as a whole.
  const TBoundary making;
  MakeForm();
  WireEvents();
  if (WorksOnProfileAccount()) {
    Group(TGroup::lgAcct).SetVisible(false);
    FCurrentAccount = host::TCustomUserAppProfile::GetInstance().AccountText();
  }
  RegisterWithHost();
  InitializeList();
  InitExchangeList();
  InitializeView();
  for (const TField side : {TField::btnBuy, TField::btnSell}) {
    Control(side).SetFont({.size = SideFontSize, .bold = true});
  }
  TAlgoOrderEntryFrame::SetLanguage(StartLanguage);
  TAlgoOrderEntryFrame::SetSkin({});
  ConfigUpdate();
  Spin(TField::edtPrice).SetValue(0);
  const std::string startSymbol(text::Trim(Edit(TField::edtSymbol).Hint()));
  if (!startSymbol.empty()) SetSymbol(startSymbol);
}

TAlgoOrderEntryFrame::~TAlgoOrderEntryFrame() { FAlive.reset(); }

void TAlgoOrderEntryFrame::Detach() {
  FAlive.reset();
  FRegistrations.ReleaseAll();
}

void TAlgoOrderEntryFrame::RunInput(const std::function<void()>& input) {
  if (Detached()) return;
  const TNestedLoopScope fresh;
  AtBoundary(input);
}

bool TAlgoOrderEntryFrame::WorksOnProfileAccount() const {
  auto& profile = host::TCustomUserAppProfile::GetInstance();
  return profile.UserKind() == SingleAccountKind && !profile.UserFlag();
}

void TAlgoOrderEntryFrame::RegisterQuantityEditor(forms::TSpinEdit& control) {
  FRegistrations.Add(host::RegisterQuantityEditor(control, FGroupID));
}

void TAlgoOrderEntryFrame::RegisterWithHost() {
  auto& all = FRegistrations;
  all.Add(host::RegisterAccountEditor(Edit(TField::edtAccount), FGroupID, LookUpMode, LookUpOptions));
  all.Add(host::RegisterSymbolEditor(Edit(TField::edtSymbol), FGroupID, LookUpMode, LookUpOptions));
  all.Add(host::RegisterPriceEditor(Spin(TField::edtPrice), FGroupID));
  for (const TField field : QuantityFields) RegisterQuantityEditor(Spin(field));
  for (const TField field : AlgoPriceFields) all.Add(host::RegisterPriceEditor(Spin(field), FGroupID));
  all.Add(host::ListenToSettings(Handler(&TAlgoOrderEntryFrame::ConfigUpdate), this));
  all.Add(host::ListenToChannel(host::CopyPriceChannel, Handler(&TAlgoOrderEntryFrame::CopyPrice), this));
  all.Add(host::ListenToChannel(host::CopyOrderChannel, Handler(&TAlgoOrderEntryFrame::CopyOrder), this));
  all.Add(host::ListenToSpreads(Handler(&TAlgoOrderEntryFrame::SpreadUpdate), this));
  all.Add(host::ListenToSkins(Handler(&TAlgoOrderEntryFrame::SkinChanged), this));
  all.Add(host::TRegistration([this] { UnfollowSymbol(); }));
}

bool TAlgoOrderEntryFrame::SetGroupID(std::string_view id) {
  return AtBoundary(false, [&] {
    if (id == FGroupID) return true;
    FGroupID = id;
    if (!WorksOnProfileAccount()) {
      Editors().RegisterAccountEditor(Edit(TField::edtAccount), FGroupID, LookUpMode, LookUpOptions);
    }
    Editors().RegisterPriceEditor(Spin(TField::edtPrice), FGroupID);
    Editors().RegisterQuantityEditor(Spin(TField::edtQty), FGroupID);
    Editors().RegisterSymbolEditor(Edit(TField::edtSymbol), FGroupID, LookUpMode, LookUpOptions);
    for (const TField field : QuantityFields) {
      if (field != TField::edtQty) Editors().RegisterQuantityEditor(Spin(field), FGroupID);
    }
    for (const TField field : AlgoPriceFields) Editors().RegisterPriceEditor(Spin(field), FGroupID);
    TellEditorsOfGroup();
    return true;
  });
}

void TAlgoOrderEntryFrame::TellEditorsOfGroup() {
  for (const TField field :
       {TField::edtPrice, TField::edtThrPx1, TField::edtThrPx2, TField::edtStopLossPx, TField::edtWPx}) {
    Editors().SetPriceSymbol(Spin(field), FCurrentSymbol);
  }
  for (const TField field : {TField::edtQty, TField::edtStopQty, TField::edtMinQty, TField::edtShowQty,
                             TField::edtJoinQty, TField::edtMaxShowQty}) {
    Editors().SetQuantitySymbol(Spin(field), FCurrentSymbol);
  }
}

void TAlgoOrderEntryFrame::SetSkin(std::string_view /*name*/) {
  AtBoundary([this] {
    auto& skin = host::TCustomLookAndFeelService::GetInstance();
    SideButton(TField::btnBuy).SetColor(host::ButtonColorSlot, skin.ColorOf(host::BuyColor, 0));
    SideButton(TField::btnSell).SetColor(host::ButtonColorSlot, skin.ColorOf(host::SellColor, 0));
    host::SendViewNotify(*this, host::ViewChanged);
  });
}

void TAlgoOrderEntryFrame::SkinChanged(std::string_view name) { SetSkin(name); }

void TAlgoOrderEntryFrame::ConfigUpdate() {
  auto& config = host::TCustomConfigManager::GetInstance();
  const std::string section = config.CurrentSection();
  Check(TField::cbPopup).SetChecked(!config.ReadBoolean(section, "ConfirmationPlaceOrd"));
  Check(TField::cbPopup).SetEnabled(!config.ReadBoolean(section, "ForceConfirmBox"));
  Check(TField::cbClear).SetChecked(config.ReadBoolean(section, "ClearOrd"));
  const auto mode = text::ParseWhole(config.ReadText(PlatformSection, "DefaultGroupDataMode"));
  FGlobalValueUpdateMode = mode && std::in_range<std::int32_t>(*mode) ? static_cast<std::int32_t>(*mode) : -1;
  UpdateScale();
}

void TAlgoOrderEntryFrame::UpdateScale() {
  const std::int32_t scale =
      host::TCustomConfigManager::GetInstance().ReadInteger(PlatformSection, "ScaleSize");
  for (const TScaleStep& step : ScaleSteps) {
    if (scale <= step.upTo) return FBoldStyle->SetSize(step.fontSize);
  }
  FBoldStyle->SetSize(LargestFontSize);
}

}  // namespace algo::views
