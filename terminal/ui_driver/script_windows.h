#pragma once

// The windows that show a script's frames while it plays.

#include <QWidget>
#include <memory>
#include <vector>

#include "forms/frame.h"
#include "terminal/render/frame_view.h"

namespace algo::terminal::ui_driver {

class TScriptWindows {
 public:
  virtual ~TScriptWindows();

  /// The frame's view, in a window that is visible and active. Throws EError if no window shows the frame.
  virtual render::TFrameView& ViewOf(const std::shared_ptr<forms::TFrame>& frame) = 0;

  /// A widget in that view's window, but outside the view, that takes the focus when it is clicked.
  virtual QWidget& FocusSinkOf(const render::TFrameView& view) const = 0;

  /// The views that currently show a frame.
  virtual std::vector<const render::TFrameView*> Views() = 0;
};

}  // namespace algo::terminal::ui_driver
