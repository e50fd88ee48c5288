#pragma once

// The layer between the desktop and the module's view provider. A view may throw whatever it is asked; the
// trader is told, and the desktop goes on with the neutral answer, as from a view that has nothing to say.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "plugin/host_contract/base_view.h"
#include "terminal/desk/session/desk_events.h"

namespace algo::terminal::desk {

class TGuardedProvider final : public host::TIBaseView {
 public:
  /// The events, which show what is thrown, outlive the layer.
  TGuardedProvider(std::unique_ptr<host::TIBaseView> inner, TDeskEvents& events)
      : TIBaseView(inner->Owner()), FInner(std::move(inner)), FEvents(events) {}

  std::string GetName() override { return Ask(&TIBaseView::GetName); }
  std::int32_t GetViewID() override { return Ask(&TIBaseView::GetViewID); }
  std::int32_t GetMenuLevel() override { return Ask(&TIBaseView::GetMenuLevel); }
  std::int32_t GetMenuIndex(std::int32_t level) override { return Ask(&TIBaseView::GetMenuIndex, level); }
  std::int32_t GetMenuID(std::int32_t level) override { return Ask(&TIBaseView::GetMenuID, level); }
  std::string GetMenuCaption(std::int32_t level) override { return Ask(&TIBaseView::GetMenuCaption, level); }
  std::int32_t GetMenuGroupIndex(std::int32_t level) override {
    return Ask(&TIBaseView::GetMenuGroupIndex, level);
  }
  bool GetIsVisible() override { return Ask(&TIBaseView::GetIsVisible); }
  bool GetIsWindow() override { return Ask(&TIBaseView::GetIsWindow); }
  host::TInstanceHandle OpenNewInstance() override { return Ask(&TIBaseView::OpenNewInstance); }
  void CloseInstance(host::TInstanceHandle instance) override { Tell(&TIBaseView::CloseInstance, instance); }
  std::int32_t GetWidth(host::TInstanceHandle instance) override {
    return Ask(&TIBaseView::GetWidth, instance);
  }
  std::int32_t GetHeight(host::TInstanceHandle instance) override {
    return Ask(&TIBaseView::GetHeight, instance);
  }
  std::string GetViewCaption(host::TInstanceHandle instance) override {
    return Ask(&TIBaseView::GetViewCaption, instance);
  }
  void HandleCaptionButtonClick(host::TInstanceHandle instance, std::int32_t button) override {
    Tell(&TIBaseView::HandleCaptionButtonClick, instance, button);
  }
  std::vector<host::TCaptionButton> GetViewCaptionButtons(host::TInstanceHandle instance) override {
    return Ask(&TIBaseView::GetViewCaptionButtons, instance);
  }
  std::vector<host::TImage> GetViewCaptionButtonImageList(host::TInstanceHandle instance) override {
    return Ask(&TIBaseView::GetViewCaptionButtonImageList, instance);
  }
  host::TImage GetViewIcon(host::TInstanceHandle instance) override {
    return Ask(&TIBaseView::GetViewIcon, instance);
  }
  std::shared_ptr<host::TViewFrame> GetPreferenceView() override {
    return Ask(&TIBaseView::GetPreferenceView);
  }
  bool GetIsDialog() override { return Ask(&TIBaseView::GetIsDialog); }
  bool GetIsSizeable() override { return AskOr(true, &TIBaseView::GetIsSizeable); }
  bool GetCanDock() override { return AskOr(true, &TIBaseView::GetCanDock); }
  host::TDockPosition GetDockPosition() override { return Ask(&TIBaseView::GetDockPosition); }
  std::vector<host::TShortcut> GetShortCutList() override { return Ask(&TIBaseView::GetShortCutList); }
  bool ExecuteShortcutAction(host::TInstanceHandle instance, std::int32_t action) override {
    return Ask(&TIBaseView::ExecuteShortcutAction, instance, action);
  }
  void SetSkin(host::TInstanceHandle instance, std::string_view name) override {
    Tell(&TIBaseView::SetSkin, instance, name);
  }
  bool SetLanguage(host::TInstanceHandle instance, std::int32_t language) override {
    return Ask(&TIBaseView::SetLanguage, instance, language);
  }
  void SetFont(host::TInstanceHandle instance, const forms::TFont& font) override {
    Tell(&TIBaseView::SetFont, instance, font);
  }
  void ActiveView(host::TInstanceHandle instance) override { Tell(&TIBaseView::ActiveView, instance); }
  void DeactiveView(host::TInstanceHandle instance) override { Tell(&TIBaseView::DeactiveView, instance); }
  std::string GetLayoutData(host::TInstanceHandle instance) override {
    return Ask(&TIBaseView::GetLayoutData, instance);
  }
  bool SetLayoutData(host::TInstanceHandle instance, std::string_view text) override {
    return Ask(&TIBaseView::SetLayoutData, instance, text);
  }
  bool SetCustomData(host::TInstanceHandle instance, std::string_view data) override {
    return Ask(&TIBaseView::SetCustomData, instance, data);
  }
  bool ContainView(host::TInstanceHandle instance) override {
    return Ask(&TIBaseView::ContainView, instance);
  }
  bool SendMessage(host::TInstanceHandle instance, std::int32_t message, std::string_view text) override {
    return Ask(&TIBaseView::SendMessage, instance, message, text);
  }
  bool SetGroupID(host::TInstanceHandle instance, std::string_view id) override {
    return Ask(&TIBaseView::SetGroupID, instance, id);
  }
  std::string GetGroupID(host::TInstanceHandle instance) override {
    return Ask(&TIBaseView::GetGroupID, instance);
  }
  bool GetIsDialogViewAfterMainShow() override { return Ask(&TIBaseView::GetIsDialogViewAfterMainShow); }
  std::int32_t GetDialogViewIndexAfterMainShow() override {
    return Ask(&TIBaseView::GetDialogViewIndexAfterMainShow);
  }
  bool GetDefaultSize(std::int32_t& width, std::int32_t& height) override {
    return Ask(&TIBaseView::GetDefaultSize, width, height);
  }
  bool GetDefaultCaption(std::string& caption) override {
    return Ask(&TIBaseView::GetDefaultCaption, caption);
  }
  void InitializeShortcut() override { Tell(&TIBaseView::InitializeShortcut); }
  std::shared_ptr<host::TViewFrame> FindView(host::TInstanceHandle instance) const override {
    return Ask(&TIBaseView::FindView, instance);
  }

 private:
  template <class TAnswer, class TOperation, class... TArguments>
  TAnswer AskOr(TAnswer neutral, TOperation operation, TArguments&... arguments) const {
    TAnswer answer = neutral;
    const bool answered = FEvents.Guard([&] { answer = ((*FInner).*operation)(arguments...); });
    return answered ? answer : neutral;
  }

  /// The provider's answer; 0, empty, false or nothing when it throws.
  template <class TOperation, class... TArguments>
  std::invoke_result_t<TOperation, TIBaseView&, TArguments&...> Ask(TOperation operation,
                                                                    TArguments&... arguments) const {
    return AskOr(std::invoke_result_t<TOperation, TIBaseView&, TArguments&...>(), operation, arguments...);
  }

  template <class TOperation, class... TArguments>
  void Tell(TOperation operation, TArguments&... arguments) const {
    FEvents.Guard([&] { ((*FInner).*operation)(arguments...); });
  }

  std::unique_ptr<host::TIBaseView> FInner;
  TDeskEvents& FEvents;
};

}  // namespace algo::terminal::desk
