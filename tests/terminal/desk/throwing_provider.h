#pragma once

// A provider that throws whatever it is asked, but for the operations that a test spares.

#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/terminal/desk/talking_view.h"

namespace algo::terminal::desk::tests {

class TThrowingProvider final : public TTalkingProvider {
 public:
  TThrowingProvider(TTalk& talk, std::set<std::string> spared)
      : TTalkingProvider(talk), FSpared(std::move(spared)) {}

  std::string GetName() override { return Fail("GetName"), TTalkingProvider::GetName(); }
  std::int32_t GetViewID() override { return Fail("GetViewID"), 1; }
  std::int32_t GetMenuLevel() override { return Fail("GetMenuLevel"), TTalkingProvider::GetMenuLevel(); }
  std::int32_t GetMenuIndex(std::int32_t level) override {
    return Fail("GetMenuIndex"), TTalkingProvider::GetMenuIndex(level);
  }
  std::int32_t GetMenuID(std::int32_t level) override {
    return Fail("GetMenuID"), TTalkingProvider::GetMenuID(level);
  }
  std::string GetMenuCaption(std::int32_t level) override {
    return Fail("GetMenuCaption"), TTalkingProvider::GetMenuCaption(level);
  }
  std::int32_t GetMenuGroupIndex(std::int32_t) override { return Fail("GetMenuGroupIndex"), 1; }
  bool GetIsVisible() override { return Fail("GetIsVisible"), true; }
  bool GetIsWindow() override { return Fail("GetIsWindow"), true; }
  host::TInstanceHandle OpenNewInstance() override {
    return Fail("OpenNewInstance"), TTalkingProvider::OpenNewInstance();
  }
  void CloseInstance(host::TInstanceHandle) override { Fail("CloseInstance"); }
  std::int32_t GetWidth(host::TInstanceHandle) override { return Fail("GetWidth"), 1; }
  std::int32_t GetHeight(host::TInstanceHandle) override { return Fail("GetHeight"), 1; }
  std::string GetViewCaption(host::TInstanceHandle) override { return Fail("GetViewCaption"), "x"; }
  void HandleCaptionButtonClick(host::TInstanceHandle, std::int32_t) override {
    Fail("HandleCaptionButtonClick");
  }
  std::vector<host::TCaptionButton> GetViewCaptionButtons(host::TInstanceHandle instance) override {
    return Fail("GetViewCaptionButtons"), TTalkingProvider::GetViewCaptionButtons(instance);
  }
  std::vector<host::TImage> GetViewCaptionButtonImageList(host::TInstanceHandle) override {
    return Fail("GetViewCaptionButtonImageList"), std::vector<host::TImage>(1);
  }
  host::TImage GetViewIcon(host::TInstanceHandle) override {
    return Fail("GetViewIcon"), host::TImage{1, 1, {1}};
  }
  std::shared_ptr<host::TViewFrame> GetPreferenceView() override {
    return Fail("GetPreferenceView"), TTalkingProvider::GetPreferenceView();
  }
  bool GetIsDialog() override { return Fail("GetIsDialog"), true; }
  bool GetIsSizeable() override { return Fail("GetIsSizeable"), false; }
  bool GetCanDock() override { return Fail("GetCanDock"), false; }
  host::TDockPosition GetDockPosition() override {
    return Fail("GetDockPosition"), host::TDockPosition::Bottom;
  }
  std::vector<host::TShortcut> GetShortCutList() override {
    return Fail("GetShortCutList"), TTalkingProvider::GetShortCutList();
  }
  bool ExecuteShortcutAction(host::TInstanceHandle, std::int32_t) override {
    return Fail("ExecuteShortcutAction"), true;
  }
  void SetSkin(host::TInstanceHandle, std::string_view) override { Fail("SetSkin"); }
  bool SetLanguage(host::TInstanceHandle, std::int32_t) override { return Fail("SetLanguage"), true; }
  void SetFont(host::TInstanceHandle, const forms::TFont&) override { Fail("SetFont"); }
  void ActiveView(host::TInstanceHandle) override { Fail("ActiveView"); }
  void DeactiveView(host::TInstanceHandle) override { Fail("DeactiveView"); }
  std::string GetLayoutData(host::TInstanceHandle) override { return Fail("GetLayoutData"), "x"; }
  bool SetLayoutData(host::TInstanceHandle, std::string_view) override { return Fail("SetLayoutData"), true; }
  bool SetCustomData(host::TInstanceHandle, std::string_view) override { return Fail("SetCustomData"), true; }
  bool ContainView(host::TInstanceHandle) override { return Fail("ContainView"), true; }
  bool SendMessage(host::TInstanceHandle, std::int32_t, std::string_view) override {
    return Fail("SendMessage"), true;
  }
  bool SetGroupID(host::TInstanceHandle, std::string_view) override { return Fail("SetGroupID"), true; }
  std::string GetGroupID(host::TInstanceHandle) override { return Fail("GetGroupID"), "x"; }
  bool GetIsDialogViewAfterMainShow() override { return Fail("GetIsDialogViewAfterMainShow"), true; }
  std::int32_t GetDialogViewIndexAfterMainShow() override {
    return Fail("GetDialogViewIndexAfterMainShow"), 1;
  }
  bool GetDefaultSize(std::int32_t&, std::int32_t&) override { return Fail("GetDefaultSize"), true; }
  bool GetDefaultCaption(std::string& caption) override {
    return Fail("GetDefaultCaption"), TTalkingProvider::GetDefaultCaption(caption);
  }
  void InitializeShortcut() override { Fail("InitializeShortcut"); }
  std::shared_ptr<host::TViewFrame> FindView(host::TInstanceHandle instance) const override {
    return Fail("FindView"), TTalkingProvider::FindView(instance);
  }

 private:
  void Fail(const char* operation) const {
    if (!FSpared.contains(operation)) throw std::runtime_error(std::string(operation) + " failed");
  }

  std::set<std::string> FSpared;
};

}  // namespace algo::terminal::desk::tests
