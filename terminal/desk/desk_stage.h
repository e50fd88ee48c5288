#pragma once

// The main window as a stage: frames stand in its panels and dialogs.

#include "terminal/desk/main_window.h"
#include "terminal/ui_driver/stage.h"

namespace algo::terminal {

class TDeskStage final : public TStage {
 public:
  /// The window outlives the stage.
  explicit TDeskStage(TMainWindow& window) : FWindow(window) {}

  TFrameView& ViewOf(const std::shared_ptr<forms::TFrame>& frame) override;
  QWidget& RestOf(const TFrameView& view) const override;
  std::vector<const TFrameView*> Views() override;

 private:
  TMainWindow& FWindow;
};

}  // namespace algo::terminal
