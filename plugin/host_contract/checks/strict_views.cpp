#include "plugin/host_contract/checks/strict_views.h"

#include <algorithm>
#include <utility>

namespace algo::host::checks {

void TStrictConfig::AddListener(TListener listener, TOwner owner) {
  FListeners.Add(listener, owner, [&] { FInner.AddListener(std::move(listener), owner); });
}

void TStrictConfig::RemoveListener(TOwner owner) {
  FListeners.Remove(owner, [&] { FInner.RemoveListener(owner); });
}

std::string TStrictLanguage::GetText(std::string_view tag, std::string_view id, std::int32_t language,
                                     std::int32_t variant, std::int32_t options) {
  FViolations.Require(language == 3 && variant == 0 && options == 0,
                      "a text is asked for with other trailing arguments than 3, 0, 0");
  return FInner.GetText(tag, id, language, variant, options);
}

forms::TColor TStrictSkins::ColorOf(std::int32_t index, std::int32_t variant) {
  FViolations.Require(variant == 0, "a colour is asked for with another variant than 0");
  return FInner.ColorOf(index, variant);
}

void TStrictSkins::AddListener(TListener listener, TOwner owner) {
  FListeners.Add(listener, owner, [&] { FInner.AddListener(std::move(listener), owner); });
}

void TStrictSkins::RemoveListener(TOwner owner) {
  FListeners.Remove(owner, [&] { FInner.RemoveListener(owner); });
}

std::shared_ptr<forms::TDialogForm> TStrictViews::MakeDialogForm(TIBaseView& provider) {
  std::erase_if(FForms, [](const auto& form) { return form.expired(); });
  auto made = FInner.MakeDialogForm(provider);
  FForms.push_back(made);
  return made;
}

std::size_t TStrictViews::Forms() const {
  return static_cast<std::size_t>(
      std::count_if(FForms.begin(), FForms.end(), [](const auto& form) { return !form.expired(); }));
}

}  // namespace algo::host::checks
