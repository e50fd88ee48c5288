#pragma once

// The widget of one control. It shows what the control holds and passes on what the trader does; it decides
// nothing.

#include <QWidget>
#include <memory>
#include <string>

#include "forms/control.h"
#include "terminal/render/editor_assist.h"
#include "terminal/render/frame_input.h"

namespace algo::terminal::render {

class TControlView {
 public:
  explicit TControlView(forms::TControl& control) : FControl(control) {}
  virtual ~TControlView();
  TControlView(const TControlView&) = delete;
  TControlView& operator=(const TControlView&) = delete;

  forms::TControl& Control() const { return FControl; }

  /// The widget in the layout, with the control's name as its object name. Owned by its parent widget.
  virtual QWidget& Widget() const = 0;
  /// The part of it that takes keys and mouse.
  virtual QWidget& Input() const { return Widget(); }

  /// Shows the control as it is now: value, appearance, and whether it takes input.
  void Refresh();

  /// The text that the widget shows, for comparison with the control's.
  virtual QString ShownText() const { return {}; }
  /// The selected part of the shown text.
  virtual QString SelectedText() const { return {}; }

 protected:
  /// Shows value and appearance; Refresh has done what all kinds have in common.
  virtual void Show() = 0;

 private:
  forms::TControl& FControl;
};

/// The view of the control, its widget created as a child of `parent`. `assist` and `input` outlive it.
std::unique_ptr<TControlView> MakeControlView(forms::TControl& control, const TFrameInput& input,
                                              const TEditorAssist& assist, QWidget& parent);

}  // namespace algo::terminal::render
