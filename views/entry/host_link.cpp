// What ties a frame to the host for its life: the host editors that serve its fields, the notifications that
// it listens to, and the settings that it follows.

#include <algorithm>
#include <array>
#include <utility>

#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/editor_manager.h"
#include "plugin/host_contract/listen.h"
#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/user_app_profile.h"
#include "text/number_text.h"
#include "views/entry/entry_frame.h"
#include "views/entry/field_lists.h"

namespace algo::views::entry {

namespace {

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

host::TEditorManager& Editors() { return host::TEditorManager::GetInstance(); }

}  // namespace

bool TAlgoOrderEntryFrame::WorksOnProfileAccount() const {
  auto& profile = host::TCustomUserAppProfile::GetInstance();
  return profile.UserKind() == SingleAccountKind && !profile.UserFlag();
}

void TAlgoOrderEntryFrame::RegisterQuantityEditor(forms::TSpinEdit& control) {
  Registrations().Add(host::RegisterQuantityEditor(control, FGroupID));
}

void TAlgoOrderEntryFrame::RegisterWithHost() {
  auto& all = Registrations();
  all.Add(host::RegisterAccountEditor(Edit(TField::edtAccount), FGroupID, LookUpMode, LookUpOptions));
  all.Add(host::RegisterSymbolEditor(Edit(TField::edtSymbol), FGroupID, LookUpMode, LookUpOptions));
  all.Add(host::RegisterPriceEditor(Spin(TField::edtPrice), FGroupID));
  for (const TField field : QuantityEditors) RegisterQuantityEditor(Spin(field));
  for (const TField field : AlgoPriceEditors) all.Add(host::RegisterPriceEditor(Spin(field), FGroupID));
  all.Add(host::ListenToSettings(HostHandler(&TAlgoOrderEntryFrame::ConfigUpdate), this));
  all.Add(host::ListenToChannel(host::CopyPriceChannel, HostHandler(&TAlgoOrderEntryFrame::CopyPrice), this));
  all.Add(host::ListenToChannel(host::CopyOrderChannel, HostHandler(&TAlgoOrderEntryFrame::CopyOrder), this));
  all.Add(host::ListenToSpreads(HostHandler(&TAlgoOrderEntryFrame::SpreadUpdate), this));
  all.Add(host::ListenToSkins(HostHandler(&TAlgoOrderEntryFrame::SkinChanged), this));
  all.Add(host::TRegistration([this] { FSymbol.End(); }));
}

bool TAlgoOrderEntryFrame::SetGroupID(std::string_view id) {
  return AtHostBoundary(false, [&] {
    if (id == FGroupID) return true;
    const std::string former = std::exchange(FGroupID, std::string(id));
    try {
      JoinGroup();
    } catch (...) {
      // So that the same group can be asked for again.
      FGroupID = former;
      throw;
    }
    return true;
  });
}

void TAlgoOrderEntryFrame::JoinGroup() {
  const std::string group = FGroupID;
  const auto price = [&](TField field) { return Rejoin(host::RegisterPriceEditor(Spin(field), group)); };
  const auto quantity = [&](TField field) {
    return Rejoin(host::RegisterQuantityEditor(Spin(field), group));
  };
  const bool joined =
      (WorksOnProfileAccount() ||
       Rejoin(host::RegisterAccountEditor(Edit(TField::edtAccount), group, LookUpMode, LookUpOptions))) &&
      price(TField::edtPrice) && quantity(TField::edtQty) &&
      Rejoin(host::RegisterSymbolEditor(Edit(TField::edtSymbol), group, LookUpMode, LookUpOptions)) &&
      std::ranges::all_of(AlgoQuantityEditors, quantity) && std::ranges::all_of(AlgoPriceEditors, price);
  if (!joined) return;
  TellEditorsOfGroup(FSymbol.Symbol());
  const std::string shown = ShownSymbol();
  if (!shown.empty()) TellEditorsOfGroup(shown);
}

bool TAlgoOrderEntryFrame::Rejoin(host::TRegistration registration) {
  // The first registration is the one that takes the editor back, unless that has happened already.
  if (!Detached()) registration.Dismiss();
  return !Detached();
}

void TAlgoOrderEntryFrame::TellEditorsOfGroup(const std::string& symbol) {
  for (const TField field : PriceEditorsOfGroup) {
    if (!Detached()) Editors().SetPriceSymbol(Spin(field), symbol);
  }
  for (const TField field : QuantityEditorsOfGroup) {
    if (!Detached()) Editors().SetQuantitySymbol(Spin(field), symbol);
  }
}

void TAlgoOrderEntryFrame::SymbolUpdate(const void* /*sender*/, const host::TItemDictionary* data) {
  FSymbol.SymbolUpdate(data);
}

void TAlgoOrderEntryFrame::SpreadUpdate(const void* /*sender*/, const host::TSpreadDictionary* data) {
  FSymbol.SpreadUpdate(data);
}

void TAlgoOrderEntryFrame::SkinChanged(std::string_view /*name*/) { ShowSkin(); }

void TAlgoOrderEntryFrame::ConfigUpdate() {
  const TSizeNotice notice(*this);
  auto& config = host::TCustomConfigManager::GetInstance();
  const std::string section = config.CurrentSection();
  Check(TField::cbPopup).SetChecked(!config.ReadBoolean(section, "ConfirmationPlaceOrd"));
  Check(TField::cbPopup).SetEnabled(!config.ReadBoolean(section, "ForceConfirmBox"));
  Check(TField::cbClear).SetChecked(config.ReadBoolean(section, "ClearOrd"));
  const auto mode = text::ParseWhole(config.ReadText(PlatformSection, "DefaultGroupDataMode"));
  FGlobalValueUpdateMode = mode && std::in_range<std::int32_t>(*mode) ? static_cast<std::int32_t>(*mode) : -1;
  UpdateScale();
  notice.Send();
}

void TAlgoOrderEntryFrame::UpdateScale() {
  const std::int32_t scale =
      host::TCustomConfigManager::GetInstance().ReadInteger(PlatformSection, "ScaleSize");
  for (const TScaleStep& step : ScaleSteps) {
    if (scale <= step.upTo) return FForm.KeyCaptions().SetSize(step.fontSize);
  }
  FForm.KeyCaptions().SetSize(LargestFontSize);
}

}  // namespace algo::views::entry
