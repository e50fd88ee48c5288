#pragma once

// The strict layers of the services around views: settings, texts, skins and dialog forms.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "plugin/host_contract/checks/listener_registry.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/view_functions.h"

namespace algo::host::checks {

class TStrictConfig final : public TCustomConfigManager {
 public:
  TStrictConfig(TCustomConfigManager& inner, const TViolations& violations)
      : FInner(inner), FListeners(violations, "the settings") {}

  std::string CurrentSection() override { return FInner.CurrentSection(); }
  std::string ReadText(std::string_view section, std::string_view key) override {
    return FInner.ReadText(section, key);
  }
  std::int32_t ReadInteger(std::string_view section, std::string_view key) override {
    return FInner.ReadInteger(section, key);
  }
  bool ReadBoolean(std::string_view section, std::string_view key) override {
    return FInner.ReadBoolean(section, key);
  }
  void Store(std::string_view section, std::string_view key, std::string_view value,
             bool writeThrough) override {
    FInner.Store(section, key, value, writeThrough);
  }
  void AddListener(TListener listener, TOwner owner) override;
  void RemoveListener(TOwner owner) override;

  std::size_t Listeners() const { return FListeners.Count(); }

 private:
  TCustomConfigManager& FInner;
  TListenerRegistry FListeners;
};

class TStrictLanguage final : public TCustomLanguageManager {
 public:
  TStrictLanguage(TCustomLanguageManager& inner, const TViolations& violations)
      : FInner(inner), FViolations(violations) {}

  std::string GetText(std::string_view tag, std::string_view id, std::int32_t language, std::int32_t variant,
                      std::int32_t options) override;

 private:
  TCustomLanguageManager& FInner;
  const TViolations& FViolations;
};

class TStrictSkins final : public TCustomLookAndFeelService {
 public:
  TStrictSkins(TCustomLookAndFeelService& inner, const TViolations& violations)
      : FInner(inner), FViolations(violations), FListeners(violations, "the skins") {}

  forms::TColor ColorOf(std::int32_t index, std::int32_t variant) override;
  void AddListener(TListener listener, TOwner owner) override;
  void RemoveListener(TOwner owner) override;

  std::size_t Listeners() const { return FListeners.Count(); }

 private:
  TCustomLookAndFeelService& FInner;
  const TViolations& FViolations;
  TListenerRegistry FListeners;
};

/// Has no rule to check; keeps count of the forms.
class TStrictViews final : public TCustomViewService {
 public:
  explicit TStrictViews(TCustomViewService& inner) : FInner(inner) {}

  std::shared_ptr<forms::TDialogForm> MakeDialogForm(TIBaseView& provider) override;
  void Notify(TViewFrame& view, std::int32_t code) override { FInner.Notify(view, code); }

  /// The forms that somebody still holds.
  std::size_t Forms() const;

 private:
  TCustomViewService& FInner;
  std::vector<std::weak_ptr<forms::TDialogForm>> FForms;
};

}  // namespace algo::host::checks
