#pragma once

// The dialog with the user's settings of the module's views, for which the provider has a frame of its own.

#include <QDialog>
#include <QDialogButtonBox>
#include <memory>

#include "plugin/host_contract/view_frame.h"
#include "terminal/desk/frames/frame_pane.h"
#include "terminal/desk/session/desk.h"

namespace algo::terminal::desk::frames {

/// A frame for the settings, which gives back what it holds when nobody has it any more; nullptr when the
/// views have nothing to set. The desk outlives the frame.
std::shared_ptr<host::TViewFrame> MakePreferences(TDesk& desk);

class TPreferenceWindow final : public QDialog {
  Q_OBJECT
 public:
  /// Shows the frame, and keeps it as long as the window is open.
  TPreferenceWindow(TDesk& desk, std::shared_ptr<host::TViewFrame> frame, QWidget& parent);
  ~TPreferenceWindow() override;

 private:
  std::shared_ptr<host::TViewFrame> FFrame;
  TFramePane& FPane;
};

}  // namespace algo::terminal::desk::frames
