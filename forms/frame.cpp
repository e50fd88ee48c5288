#include "forms/frame.h"

#include <algorithm>
#include <cassert>

namespace algo::forms {

TFrameObserver::~TFrameObserver() = default;

TFrame::TFrame(std::string className, std::string layoutName)
    : FClassName(std::move(className)), FLayout(std::move(layoutName)) {
  FLayout.FFrame = this;
}

TFrame::~TFrame() {
  Notify([](TFrameObserver& observer) { observer.FrameDestroyed(); });
  FLayout.FFrame = nullptr;
}

TControl* TFrame::FindControl(std::string_view name) const {
  const auto found = std::find_if(FControls.begin(), FControls.end(),
                                  [name](const auto& control) { return control->Name() == name; });
  return found == FControls.end() ? nullptr : found->get();
}

void TFrame::SetFocus(TControl* control) {
  if (control == FFocused) return;
  // The focus moves before the exit handler runs: a handler that fails must not trap the trader in the field.
  TControl* left = std::exchange(FFocused, control);
  Notify([](TFrameObserver& observer) { observer.FocusChanged(); });
  if (left == nullptr) return;
  if (auto* editor = dynamic_cast<TEditor*>(left)) editor->MoveCaretToEnd();
  left->Commit();
}

void TFrame::LeaveUnfocusable() {
  const auto alive = KeepAlive();
  if (!alive || FFocused == nullptr || FFocused->CanFocus()) return;
  try {
    // An input of its own: an exit handler that fails must not stop what hid or disabled the control.
    RunInput([this] { SetFocus(nullptr); });
  } catch (...) {  // NOLINT(bugprone-empty-catch): a frame without a boundary has nobody to tell
  }
}

void TFrame::AddObserver(TFrameObserver& observer) { FObservers.push_back(&observer); }

void TFrame::RemoveObserver(TFrameObserver& observer) {
  // Its place stays while observers are notified, so that none of the others is passed over.
  std::replace(FObservers.begin(), FObservers.end(), &observer, static_cast<TFrameObserver*>(nullptr));
  if (FNotifying == 0) std::erase(FObservers, nullptr);
}

template <class TNotification>
void TFrame::Notify(TNotification&& notify) {
  ++FNotifying;
  // By index, because an observer may add another while it is notified.
  // NOLINTNEXTLINE(modernize-loop-convert)
  for (std::size_t i = 0; i < FObservers.size(); ++i) {
    if (FObservers[i] != nullptr) notify(*FObservers[i]);
  }
  if (--FNotifying == 0) std::erase(FObservers, nullptr);
}

void TFrame::NotifyControlChanged(const TControl& control) {
  Notify([&control](TFrameObserver& observer) { observer.ControlChanged(control); });
}

void TFrame::NotifyLayoutChanged() {
  Notify([](TFrameObserver& observer) { observer.LayoutChanged(); });
}

}  // namespace algo::forms
