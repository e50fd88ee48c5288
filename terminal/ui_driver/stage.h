#pragma once

// Where frames stand while a script plays.

#include <QWidget>
#include <memory>
#include <vector>

#include "forms/frame.h"
#include "terminal/render/frame_view.h"

namespace algo::terminal::ui_driver {

class TStage {
 public:
  virtual ~TStage();

  /// The frame's view, in a window that shows and is active. Throws EError when the frame is shown nowhere.
  virtual render::TFrameView& ViewOf(const std::shared_ptr<forms::TFrame>& frame) = 0;

  /// Where the focus can rest in that view's window, outside of the view.
  virtual QWidget& RestOf(const render::TFrameView& view) const = 0;

  /// The views that show a frame at the moment.
  virtual std::vector<const render::TFrameView*> Views() = 0;
};

}  // namespace algo::terminal::ui_driver
