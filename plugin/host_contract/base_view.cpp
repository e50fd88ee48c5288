#include "plugin/host_contract/base_view.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <type_traits>
#include <utility>

namespace algo::host {

namespace {

/// What the view answers to the operation; 0, empty, false or nothing where there is no view. It is held
/// meanwhile, since it may be closed by what it sets off.
template <class TOperation, class... TArguments>
auto Ask(const std::shared_ptr<TViewFrame>& view, TOperation operation, const TArguments&... arguments) {
  using TAnswer = std::invoke_result_t<TOperation, TViewFrame&, const TArguments&...>;
  return view ? std::invoke(operation, *view, arguments...) : TAnswer();
}

}  // namespace

TInstanceHandle HandleOf(const TViewFrame& frame) {
  return static_cast<TInstanceHandle>(reinterpret_cast<std::intptr_t>(&frame));
}

TIBaseView::TIBaseView(const void* owner) : FOwner(owner) {}

TIBaseView::~TIBaseView() {
  try {
    CloseAllInstances();
  } catch (...) {  // NOLINT(bugprone-empty-catch): a provider that goes has nobody to report to
  }
}

void TIBaseView::AddView(std::shared_ptr<TViewFrame> frame) { FViews.push_back(std::move(frame)); }

std::shared_ptr<TViewFrame> TIBaseView::FindView(TInstanceHandle instance) const {
  const auto found = std::find_if(FViews.begin(), FViews.end(),
                                  [instance](const auto& view) { return HandleOf(*view) == instance; });
  return found == FViews.end() ? nullptr : *found;
}

std::shared_ptr<TViewFrame> TIBaseView::ReleaseView(TInstanceHandle instance) {
  auto view = FindView(instance);
  if (view) std::erase(FViews, view);
  return view;
}

bool TIBaseView::ContainView(TInstanceHandle instance) { return FindView(instance) != nullptr; }

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

bool TIBaseView::GetIsWindow() { return false; }

std::shared_ptr<TViewFrame> TIBaseView::GetPreferenceView() { return nullptr; }

bool TIBaseView::GetIsDialog() { return false; }

bool TIBaseView::GetIsSizeable() { return true; }

bool TIBaseView::GetCanDock() { return true; }

TDockPosition TIBaseView::GetDockPosition() { return TDockPosition::HostsChoice; }

std::vector<TShortcut> TIBaseView::GetShortCutList() { return {}; }

bool TIBaseView::GetIsDialogViewAfterMainShow() { return false; }

std::int32_t TIBaseView::GetDialogViewIndexAfterMainShow() { return 0; }

void TIBaseView::InitializeShortcut() {}

std::int32_t TIBaseView::GetWidth(TInstanceHandle instance) {
  return Ask(FindView(instance), &TViewFrame::GetWidth);
}

std::int32_t TIBaseView::GetHeight(TInstanceHandle instance) {
  return Ask(FindView(instance), &TViewFrame::GetHeight);
}

std::string TIBaseView::GetViewCaption(TInstanceHandle instance) {
  return Ask(FindView(instance), &TViewFrame::GetViewCaption);
}

void TIBaseView::HandleCaptionButtonClick(TInstanceHandle instance, std::int32_t button) {
  Ask(FindView(instance), &TViewFrame::HandleCaptionButtonClick, button);
}

std::vector<TCaptionButton> TIBaseView::GetViewCaptionButtons(TInstanceHandle instance) {
  return Ask(FindView(instance), &TViewFrame::GetViewCaptionButtons);
}

std::vector<TImage> TIBaseView::GetViewCaptionButtonImageList(TInstanceHandle instance) {
  return Ask(FindView(instance), &TViewFrame::GetViewCaptionButtonImageList);
}

TImage TIBaseView::GetViewIcon(TInstanceHandle instance) {
  return Ask(FindView(instance), &TViewFrame::GetViewIcon);
}

bool TIBaseView::ExecuteShortcutAction(TInstanceHandle instance, std::int32_t action) {
  return Ask(FindView(instance), &TViewFrame::ExecuteShortcutAction, action);
}

void TIBaseView::SetSkin(TInstanceHandle instance, std::string_view name) {
  Ask(FindView(instance), &TViewFrame::SetSkin, name);
}

bool TIBaseView::SetLanguage(TInstanceHandle instance, std::int32_t language) {
  return Ask(FindView(instance), &TViewFrame::SetLanguage, language);
}

void TIBaseView::SetFont(TInstanceHandle instance, const forms::TFont& font) {
  Ask(FindView(instance), &TViewFrame::SetFont, font);
}

void TIBaseView::ActiveView(TInstanceHandle instance) { Ask(FindView(instance), &TViewFrame::ActiveView); }

void TIBaseView::DeactiveView(TInstanceHandle instance) {
  Ask(FindView(instance), &TViewFrame::DeactiveView);
}

std::string TIBaseView::GetLayoutData(TInstanceHandle instance) {
  return Ask(FindView(instance), &TViewFrame::GetLayoutData);
}

bool TIBaseView::SetLayoutData(TInstanceHandle instance, std::string_view text) {
  return Ask(FindView(instance), &TViewFrame::SetLayoutData, text);
}

bool TIBaseView::SetCustomData(TInstanceHandle instance, std::string_view data) {
  return Ask(FindView(instance), &TViewFrame::SetCustomData, data);
}

bool TIBaseView::SendMessage(TInstanceHandle instance, std::int32_t message, std::string_view text) {
  return Ask(FindView(instance), &TViewFrame::SendMessage, message, text);
}

bool TIBaseView::SetGroupID(TInstanceHandle instance, std::string_view id) {
  return Ask(FindView(instance), &TViewFrame::SetGroupID, id);
}

std::string TIBaseView::GetGroupID(TInstanceHandle instance) {
  return Ask(FindView(instance), &TViewFrame::GetGroupID);
}

}  // namespace algo::host
