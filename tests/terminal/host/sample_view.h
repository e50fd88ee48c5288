#pragma once

// A minimal view and a minimal provider, for services that need one.

#include "plugin/host_contract/base_view.h"

namespace algo::host::tests {

struct TSampleView final : TViewFrame {
  TSampleView() : TViewFrame("TSampleView", "layout") {}
};

class TSampleProvider : public TIBaseView {
 public:
  TSampleProvider() : TIBaseView(nullptr) {}

  std::string GetName() override { return {}; }
  std::int32_t GetViewID() override { return 0; }
  std::int32_t GetMenuLevel() override { return 0; }
  std::int32_t GetMenuIndex(std::int32_t /*level*/) override { return 0; }
  std::int32_t GetMenuID(std::int32_t /*level*/) override { return 0; }
  std::string GetMenuCaption(std::int32_t /*level*/) override { return {}; }
  std::int32_t GetMenuGroupIndex(std::int32_t /*level*/) override { return 0; }
  bool GetIsVisible() override { return true; }
  bool GetDefaultCaption(std::string& /*caption*/) override { return false; }
  bool GetDefaultSize(std::int32_t& /*width*/, std::int32_t& /*height*/) override { return false; }
  TInstanceHandle OpenNewInstance() override { return 0; }
};

}  // namespace algo::host::tests
