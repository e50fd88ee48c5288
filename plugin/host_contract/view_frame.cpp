#include "plugin/host_contract/view_frame.h"

#include <cmath>

namespace algo::host {

TViewFrame::~TViewFrame() = default;

bool TViewFrame::SetLanguage(std::int32_t /*language*/) { return false; }

void TViewFrame::SetSkin(std::string_view /*name*/) {}

void TViewFrame::SetFont(const forms::TFont& /*font*/) {}

bool TViewFrame::SetGroupID(std::string_view /*id*/) { return false; }

std::string TViewFrame::GetGroupID() const { return {}; }

std::string TViewFrame::GetLayoutData() { return {}; }

bool TViewFrame::SetLayoutData(std::string_view /*text*/) { return false; }

std::int32_t TViewFrame::GetWidth() const {
  return static_cast<std::int32_t>(std::ceil(Layout().ContentSize().width));
}

std::int32_t TViewFrame::GetHeight() const {
  return static_cast<std::int32_t>(std::ceil(Layout().ContentSize().height));
}

std::string TViewFrame::GetViewCaption() { return {}; }

std::vector<TCaptionButton> TViewFrame::GetViewCaptionButtons() { return {}; }

std::vector<TImage> TViewFrame::GetViewCaptionButtonImageList() { return {}; }

void TViewFrame::HandleCaptionButtonClick(std::int32_t /*button*/) {}

TImage TViewFrame::GetViewIcon() { return {}; }

bool TViewFrame::ExecuteShortcutAction(std::int32_t /*action*/) { return false; }

void TViewFrame::ActiveView() {}

void TViewFrame::DeactiveView() {}

bool TViewFrame::SetCustomData(std::string_view /*data*/) { return false; }

bool TViewFrame::SendMessage(std::int32_t /*message*/, std::string_view /*text*/) { return false; }

}  // namespace algo::host
