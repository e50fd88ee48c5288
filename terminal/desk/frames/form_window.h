#pragma once

// The window of one dialog form of the module.

#include <QDialog>
#include <memory>

#include "forms/dialog_form.h"
#include "terminal/desk/frames/frame_pane.h"
#include "terminal/desk/session/desk_events.h"

namespace algo::terminal::desk::frames {

class TFormWindow final : public QDialog {
  Q_OBJECT
 public:
  /// Shows the form's frame in a client area of the form's size. The window does not own the form.
  TFormWindow(forms::TDialogForm& form, TDeskEvents& events, const render::TEditorAssist& assist,
              QWidget* parent);

  /// Whether it is the window of that form.
  bool Shows(const forms::TDialogForm& form) const { return FForm.lock().get() == &form; }

  /// Gives the form the size that its frame wants, if it is this frame.
  void Fit(const host::TViewFrame& frame);

  /// Shows the caption, client size and stay-on-top of the form.
  void Refresh();

  /// Closes the form as the close box does; escape does the same.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// Makes room for all of the frame, as far as the screen allows.
  void GrowToFrame();

  TDeskEvents& FEvents;
  std::weak_ptr<forms::TDialogForm> FForm;
  TFramePane& FPane;
  forms::TSize FClientSize;
};

}  // namespace algo::terminal::desk::frames
