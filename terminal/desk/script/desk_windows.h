#pragma once

// Where the frames of a script stand in the desktop: in the panels of the main window and in dialogs.

#include "terminal/desk/window/main_window.h"
#include "terminal/ui_driver/script_windows.h"

namespace algo::terminal::desk::script {

class TDeskWindows final : public ui_driver::TScriptWindows {
 public:
  /// The window outlives the object.
  explicit TDeskWindows(window::TMainWindow& window) : FWindow(window) {}

  render::TFrameView& ViewOf(const std::shared_ptr<forms::TFrame>& frame) override;
  QWidget& FocusSinkOf(const render::TFrameView& view) const override;
  std::vector<const render::TFrameView*> Views() override;

 private:
  window::TMainWindow& FWindow;
};

}  // namespace algo::terminal::desk::script
