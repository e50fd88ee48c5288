#pragma once

// A stage without a terminal around it: each frame in a window of its own, made when the trader first turns
// to it. A window goes with its frame.

#include <memory>
#include <vector>

#include "terminal/render/editor_aids.h"
#include "terminal/ui_driver/stage.h"

namespace algo::terminal::ui_driver {

class TWindowStage final : public TStage {
 public:
  TWindowStage();
  ~TWindowStage() override;

  render::TFrameView& ViewOf(const std::shared_ptr<forms::TFrame>& frame) override;

  QWidget& RestOf(const render::TFrameView& view) const override;

  std::vector<const render::TFrameView*> Views() override;

 private:
  struct TWindow;

  render::TEditorAids FAids;
  std::vector<std::unique_ptr<TWindow>> FWindows;
};

}  // namespace algo::terminal::ui_driver
