#pragma once

// A view that answers everything and notes what it was given, and a provider that opens such views.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tests/terminal/host/sample_view.h"

namespace algo::host::tests {

class TNotingView final : public TViewFrame {
 public:
  explicit TNotingView(std::vector<std::string>& log) : TViewFrame("TNotingView", "layout"), FLog(log) {}

  bool SetLanguage(std::int32_t language) override { return Note("language " + std::to_string(language)); }
  void SetSkin(std::string_view name) override { Note("skin " + std::string(name)); }
  void SetFont(const forms::TFont& font) override { Note("font " + std::to_string(font.size)); }
  bool SetGroupID(std::string_view id) override { return Note("group " + std::string(id)); }
  std::string GetGroupID() const override { return "its group"; }
  std::string GetLayoutData() override { return "its layout"; }
  bool SetLayoutData(std::string_view text) override { return Note("layout " + std::string(text)); }
  std::int32_t GetWidth() const override { return 320; }
  std::int32_t GetHeight() const override { return 200; }
  std::string GetViewCaption() override { return "its caption"; }
  std::vector<TCaptionButton> GetViewCaptionButtons() override { return {{7, "Pin", 0}, {8, "Help", -1}}; }
  std::vector<TImage> GetViewCaptionButtonImageList() override { return {{1, 1, {0xFF112233}}}; }
  void HandleCaptionButtonClick(std::int32_t button) override { Note("button " + std::to_string(button)); }
  TImage GetViewIcon() override { return {1, 1, {0xFF445566}}; }
  bool ExecuteShortcutAction(std::int32_t action) override {
    return Note("shortcut " + std::to_string(action));
  }
  void ActiveView() override { Note("active"); }
  void DeactiveView() override { Note("inactive"); }
  bool SetCustomData(std::string_view data) override { return Note("data " + std::string(data)); }
  bool SendMessage(std::int32_t message, std::string_view text) override {
    return Note("message " + std::to_string(message) + " " + std::string(text));
  }
  void Detach() override { Note("closed"); }

 private:
  bool Note(std::string line) {
    FLog.push_back(std::move(line));
    return true;
  }

  std::vector<std::string>& FLog;
};

class TNotingProvider final : public TSampleProvider {
 public:
  explicit TNotingProvider(std::vector<std::string>& log) : FLog(log) {}

  TInstanceHandle OpenNewInstance() override {
    auto view = std::make_shared<TNotingView>(FLog);
    const TInstanceHandle handle = HandleOf(*view);
    AddView(std::move(view));
    return handle;
  }
  std::vector<TShortcut> GetShortCutList() override { return {{21, "Send", "Ctrl+Return"}}; }
  void InitializeShortcut() override { FLog.emplace_back("shortcuts"); }

 private:
  std::vector<std::string>& FLog;
};

}  // namespace algo::host::tests
