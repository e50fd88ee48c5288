#include "views/boundary/guarded_frame.h"

namespace algo::views {

TGuardedFrame::~TGuardedFrame() { FAlive.reset(); }

void TGuardedFrame::Detach() {
  FAlive.reset();
  FRegistrations.ReleaseAll();
}

void TGuardedFrame::RunInput(const std::function<void()>& input) {
  if (Detached()) return;
  const TNestedLoopScope nested;
  AtBoundary(input);
}

}  // namespace algo::views
