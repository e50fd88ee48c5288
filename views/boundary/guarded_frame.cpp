#include "views/boundary/guarded_frame.h"

#include "plugin/host_contract/view_functions.h"

namespace algo::views {

TGuardedFrame::~TGuardedFrame() { FAlive.reset(); }

void TGuardedFrame::Detach() {
  FAlive.reset();
  AtBoundary([this] { FRegistrations.ReleaseAll(); });
}

std::int32_t TGuardedFrame::GetWidth() const {
  return AtBoundary(std::int32_t{0}, [this] { return TViewFrame::GetWidth(); });
}

std::int32_t TGuardedFrame::GetHeight() const {
  return AtBoundary(std::int32_t{0}, [this] { return TViewFrame::GetHeight(); });
}

void TGuardedFrame::RunInput(const std::function<void()>& input) {
  if (Detached()) return;
  const TNestedLoopScope nested;
  AtBoundary(input);
}

void TGuardedFrame::Failed(const std::exception_ptr& failure) {
  AtBoundary([&failure] { std::rethrow_exception(failure); });
}

void TGuardedFrame::NotifyViewChanged() {
  if (!Detached()) host::SendViewNotify(*this, host::ViewChanged);
}

}  // namespace algo::views
