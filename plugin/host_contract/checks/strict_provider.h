#pragma once

// The strict layer of a view provider. The other layers stand between the module and the host's services;
// this one stands on the other side and stops the host at a call that the contract forbids.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "plugin/host_contract/base_view.h"
#include "plugin/host_contract/checks/violations.h"

namespace algo::host::checks {

class TStrictProvider final : public TIBaseView {
 public:
  TStrictProvider(std::unique_ptr<TIBaseView> inner, const TViolations& violations)
      : TIBaseView(inner->Owner()), FInner(std::move(inner)), FViolations(violations) {}

  std::string GetName() override { return FInner->GetName(); }
  std::int32_t GetViewID() override { return FInner->GetViewID(); }
  std::int32_t GetMenuLevel() override { return FInner->GetMenuLevel(); }
  std::int32_t GetMenuIndex(std::int32_t level) override { return FInner->GetMenuIndex(level); }
  std::int32_t GetMenuID(std::int32_t level) override { return FInner->GetMenuID(level); }
  std::string GetMenuCaption(std::int32_t level) override { return FInner->GetMenuCaption(level); }
  std::int32_t GetMenuGroupIndex(std::int32_t level) override { return FInner->GetMenuGroupIndex(level); }
  bool GetIsVisible() override { return FInner->GetIsVisible(); }
  bool GetIsWindow() override { return FInner->GetIsWindow(); }
  TInstanceHandle OpenNewInstance() override;
  void CloseInstance(TInstanceHandle instance) override {
    Opened(instance, "CloseInstance").CloseInstance(instance);
  }
  std::int32_t GetWidth(TInstanceHandle instance) override {
    return Opened(instance, "GetWidth").GetWidth(instance);
  }
  std::int32_t GetHeight(TInstanceHandle instance) override {
    return Opened(instance, "GetHeight").GetHeight(instance);
  }
  std::string GetViewCaption(TInstanceHandle instance) override {
    return Opened(instance, "GetViewCaption").GetViewCaption(instance);
  }
  void HandleCaptionButtonClick(TInstanceHandle instance, std::int32_t button) override;
  std::vector<TCaptionButton> GetViewCaptionButtons(TInstanceHandle instance) override {
    return Opened(instance, "GetViewCaptionButtons").GetViewCaptionButtons(instance);
  }
  std::vector<TImage> GetViewCaptionButtonImageList(TInstanceHandle instance) override {
    return Opened(instance, "GetViewCaptionButtonImageList").GetViewCaptionButtonImageList(instance);
  }
  TImage GetViewIcon(TInstanceHandle instance) override {
    return Opened(instance, "GetViewIcon").GetViewIcon(instance);
  }
  std::shared_ptr<TViewFrame> GetPreferenceView() override { return FInner->GetPreferenceView(); }
  bool GetIsDialog() override { return FInner->GetIsDialog(); }
  bool GetIsSizeable() override { return FInner->GetIsSizeable(); }
  bool GetCanDock() override { return FInner->GetCanDock(); }
  TDockPosition GetDockPosition() override { return FInner->GetDockPosition(); }
  std::vector<TShortcut> GetShortCutList() override;
  bool ExecuteShortcutAction(TInstanceHandle instance, std::int32_t action) override;
  void SetSkin(TInstanceHandle instance, std::string_view name) override {
    Opened(instance, "SetSkin").SetSkin(instance, name);
  }
  bool SetLanguage(TInstanceHandle instance, std::int32_t language) override;
  void SetFont(TInstanceHandle instance, const forms::TFont& font) override {
    Opened(instance, "SetFont").SetFont(instance, font);
  }
  void ActiveView(TInstanceHandle instance) override { Opened(instance, "ActiveView").ActiveView(instance); }
  void DeactiveView(TInstanceHandle instance) override {
    Opened(instance, "DeactiveView").DeactiveView(instance);
  }
  std::string GetLayoutData(TInstanceHandle instance) override {
    return Opened(instance, "GetLayoutData").GetLayoutData(instance);
  }
  bool SetLayoutData(TInstanceHandle instance, std::string_view text) override {
    return Opened(instance, "SetLayoutData").SetLayoutData(instance, text);
  }
  bool SetCustomData(TInstanceHandle instance, std::string_view data) override {
    return Opened(instance, "SetCustomData").SetCustomData(instance, data);
  }
  bool ContainView(TInstanceHandle instance) override { return FInner->ContainView(instance); }
  bool SendMessage(TInstanceHandle instance, std::int32_t message, std::string_view text) override {
    return Opened(instance, "SendMessage").SendMessage(instance, message, text);
  }
  bool SetGroupID(TInstanceHandle instance, std::string_view id) override {
    return Opened(instance, "SetGroupID").SetGroupID(instance, id);
  }
  std::string GetGroupID(TInstanceHandle instance) override {
    return Opened(instance, "GetGroupID").GetGroupID(instance);
  }
  bool GetIsDialogViewAfterMainShow() override { return FInner->GetIsDialogViewAfterMainShow(); }
  std::int32_t GetDialogViewIndexAfterMainShow() override {
    return FInner->GetDialogViewIndexAfterMainShow();
  }
  bool GetDefaultSize(std::int32_t& width, std::int32_t& height) override {
    return FInner->GetDefaultSize(width, height);
  }
  bool GetDefaultCaption(std::string& caption) override { return FInner->GetDefaultCaption(caption); }
  void InitializeShortcut() override;
  std::shared_ptr<TViewFrame> FindView(TInstanceHandle instance) const override {
    return FInner->FindView(instance);
  }
  std::shared_ptr<TViewFrame> ReleaseView(TInstanceHandle instance) override {
    return Opened(instance, "ReleaseView").ReleaseView(instance);
  }

 private:
  /// The provider, after a check that the instance is open.
  TIBaseView& Opened(TInstanceHandle instance, const char* operation) const;

  std::unique_ptr<TIBaseView> FInner;
  const TViolations& FViolations;
  bool FShortcutsMade = false;
  /// Gone with the provider: a host may destroy it in the middle of a call.
  std::shared_ptr<const bool> FAlive = std::make_shared<const bool>(true);
};

}  // namespace algo::host::checks
