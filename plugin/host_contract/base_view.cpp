#include "plugin/host_contract/base_view.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <utility>

namespace algo::host {

TViewFrame::~TViewFrame() = default;

bool TViewFrame::SetLanguage(std::int32_t /*language*/) { return false; }

void TViewFrame::SetSkin(std::string_view /*name*/) {}

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

TInstanceHandle HandleOf(const TViewFrame& frame) {
  return static_cast<TInstanceHandle>(reinterpret_cast<std::intptr_t>(&frame));
}

TIBaseView::TIBaseView(const void* owner) : FOwner(owner) {}

TIBaseView::~TIBaseView() {
  try {
    CloseAllInstances();
  } catch (...) {  // NOLINT(bugprone-empty-catch): a provider that goes has nobody to tell
  }
}

bool TIBaseView::GetIsWindow() { return false; }

void TIBaseView::AddView(std::shared_ptr<TViewFrame> frame) { FViews.push_back(std::move(frame)); }

std::shared_ptr<TViewFrame> TIBaseView::FindView(TInstanceHandle instance) const {
  const auto found = std::find_if(FViews.begin(), FViews.end(),
                                  [instance](const auto& view) { return HandleOf(*view) == instance; });
  return found == FViews.end() ? nullptr : *found;
}

void TIBaseView::CloseInstance(TInstanceHandle instance) {
  const auto view = FindView(instance);
  if (!view) return;
  std::erase(FViews, view);
  view->Detach();
}

void TIBaseView::CloseAllInstances() {
  std::exception_ptr first;
  while (!FViews.empty()) {
    // Out of the list first: giving things back may call into the host, which may ask for the instances.
    const auto view = std::move(FViews.back());
    FViews.pop_back();
    try {
      view->Detach();
    } catch (...) {
      if (!first) first = std::current_exception();
    }
  }
  if (first) std::rethrow_exception(first);
}

bool TIBaseView::ContainView(TInstanceHandle instance) { return FindView(instance) != nullptr; }

std::int32_t TIBaseView::GetWidth(TInstanceHandle instance) {
  const auto view = FindView(instance);
  return view ? view->GetWidth() : 0;
}

std::int32_t TIBaseView::GetHeight(TInstanceHandle instance) {
  const auto view = FindView(instance);
  return view ? view->GetHeight() : 0;
}

bool TIBaseView::SetLanguage(TInstanceHandle instance, std::int32_t language) {
  const auto view = FindView(instance);
  return view && view->SetLanguage(language);
}

void TIBaseView::SetSkin(TInstanceHandle instance, std::string_view name) {
  if (const auto view = FindView(instance)) view->SetSkin(name);
}

bool TIBaseView::SetGroupID(TInstanceHandle instance, std::string_view id) {
  const auto view = FindView(instance);
  return view && view->SetGroupID(id);
}

std::string TIBaseView::GetGroupID(TInstanceHandle instance) {
  const auto view = FindView(instance);
  return view ? view->GetGroupID() : std::string();
}

std::string TIBaseView::GetLayoutData(TInstanceHandle instance) {
  const auto view = FindView(instance);
  return view ? view->GetLayoutData() : std::string();
}

bool TIBaseView::SetLayoutData(TInstanceHandle instance, std::string_view text) {
  const auto view = FindView(instance);
  return view && view->SetLayoutData(text);
}

}  // namespace algo::host
