#pragma once

// The main window as a stage: frames stand in its panels and dialogs.

#include "terminal/desk/main_window.h"
#include "terminal/ui_driver/script_windows.h"

namespace algo::terminal {

class TDeskStage final : public TScriptWindows {
 public:
  /// The window outlives the stage.
  explicit TDeskStage(TMainWindow& window) : FWindow(window) {}

  TFrameView& ViewOf(const std::shared_ptr<forms::TFrame>& frame) override;
  QWidget& FocusSinkOf(const TFrameView& view) const override;
  std::vector<const TFrameView*> Views() override;

 private:
  TMainWindow& FWindow;
};

}  // namespace algo::terminal
