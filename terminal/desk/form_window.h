#pragma once

// The window of one dialog form of the module.

#include <QDialog>
#include <memory>

#include "forms/dialog_form.h"
#include "terminal/desk/desk_events.h"
#include "terminal/desk/frame_pane.h"

namespace algo::terminal {

class TFormWindow final : public QDialog {
  Q_OBJECT
 public:
  /// Shows the form's frame in a client area of the form's size. The window does not keep the form.
  TFormWindow(forms::TDialogForm& form, TDeskEvents& events, const TEditorAssist& aids, QWidget* parent);

  /// Whether it shows that form.
  bool IsOf(const forms::TDialogForm& form) const { return FForm.lock().get() == &form; }

  /// Has the form take the size that its frame wants now, if it is this frame.
  void Fit(const host::TViewFrame& frame);

  /// Takes over caption, client size and stay-on-top of the form.
  void Refresh();

  /// Closes the form as the close box does; escape does the same.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// Makes room for all of the frame, as far as the screen has it.
  void Grow();

  TDeskEvents& FEvents;
  std::weak_ptr<forms::TDialogForm> FForm;
  TFramePane& FPane;
  forms::TSize FClientSize;
};

}  // namespace algo::terminal
