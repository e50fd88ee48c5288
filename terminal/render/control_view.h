#pragma once

// The widget of one control. It shows what the control holds and sends back what the trader does; it decides
// nothing.

#include <QWidget>
#include <memory>
#include <string>

#include "forms/control.h"
#include "terminal/render/editor_aids.h"
#include "terminal/render/frame_input.h"

namespace algo::terminal::render {

class TControlView {
 public:
  explicit TControlView(forms::TControl& control) : FControl(control) {}
  virtual ~TControlView();
  TControlView(const TControlView&) = delete;
  TControlView& operator=(const TControlView&) = delete;

  forms::TControl& Control() const { return FControl; }

  /// What stands in the layout; it carries the control's name. Owned by its parent widget.
  virtual QWidget& Widget() const = 0;
  /// The part of it that takes keys and mouse.
  virtual QWidget& Input() const { return Widget(); }

  /// Shows the control as it is now: value, looks, and whether it takes input.
  void Refresh();

  /// The text that the widget shows, for whoever compares it with the control's.
  virtual QString ShownText() const { return {}; }
  /// What of the shown text is selected.
  virtual QString SelectedText() const { return {}; }

 protected:
  /// Shows value and looks; what all kinds have in common is done already.
  virtual void Show() = 0;

 private:
  forms::TControl& FControl;
};

/// The view of the control, its widget made as a child of `parent`. `aids` and `input` outlive it.
std::unique_ptr<TControlView> MakeControlView(forms::TControl& control, const TFrameInput& input,
                                              const TEditorAids& aids, QWidget& parent);

}  // namespace algo::terminal::render
