#pragma once

// The way from a frame to whoever draws it.

#include "forms/export.h"

namespace algo::forms {

class TControl;

/// What a renderer is notified of. The frame is unchanged by being observed; an observer must not throw.
class ALGO_SHARED TFrameObserver {
 public:
  virtual ~TFrameObserver();
  /// Value or appearance of one control changed.
  virtual void ControlChanged(const TControl& control) = 0;
  /// What is shown, or where, changed; sent once for each outermost layout update.
  virtual void LayoutChanged() = 0;
  virtual void FocusChanged() = 0;
  /// The frame is being destroyed; nothing of it may be touched any more, not even to take the observer off.
  virtual void FrameDestroyed() {}
};

}  // namespace algo::forms
