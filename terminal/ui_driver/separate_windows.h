#pragma once

// Script windows without a terminal around them: each frame in a window of its own, created when the script
// first addresses the frame and closed when the frame is gone.

#include <memory>
#include <vector>

#include "terminal/render/editor_assist.h"
#include "terminal/ui_driver/script_windows.h"

namespace algo::terminal::ui_driver {

class TSeparateWindows final : public TScriptWindows {
 public:
  TSeparateWindows();
  ~TSeparateWindows() override;

  render::TFrameView& ViewOf(const std::shared_ptr<forms::TFrame>& frame) override;

  QWidget& FocusSinkOf(const render::TFrameView& view) const override;

  std::vector<const render::TFrameView*> Views() override;

 private:
  struct TWindow;

  render::TEditorAssist FAssist;
  std::vector<std::unique_ptr<TWindow>> FWindows;
};

}  // namespace algo::terminal::ui_driver
