#pragma once

// Where frames stand while a script plays: each in a window of its own, made when the trader first turns to
// it. A window goes with its frame.

#include <QWidget>
#include <map>
#include <memory>
#include <vector>

#include "forms/dialog_form.h"
#include "forms/frame.h"
#include "terminal/render/frame_view.h"

namespace algo::terminal {

class TStage {
 public:
  TStage();
  ~TStage();

  /// The frame's view, in a window that shows and is active.
  TFrameView& ViewOf(const std::shared_ptr<forms::TFrame>& frame);

  /// Where the focus can rest in that view's window, outside of the view.
  QWidget& RestOf(const TFrameView& view) const;

  /// The views whose frames are there, in the order in which they were made; windows of others are closed.
  std::vector<const TFrameView*> Views();

 private:
  struct TWindow;

  TEditorAids FAids;
  std::vector<std::unique_ptr<TWindow>> FWindows;
};

}  // namespace algo::terminal
