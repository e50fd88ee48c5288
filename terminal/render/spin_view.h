#pragma once

// A number with buttons, keys and a wheel to step it. It may be empty, and what is typed stays as typed until
// the editor is left.

#include <QAbstractSpinBox>

#include "terminal/render/control_view.h"

namespace algo::terminal {

class TSpinView final : public TControlView {
 public:
  TSpinView(forms::TSpinEdit& control, const TFrameInput& input, QWidget& parent);

  QWidget& Widget() const override;
  QString ShownText() const override;
  QString SelectedText() const override;

 protected:
  void Show() override;

 private:
  class TBox;
  TBox& FBox;
};

}  // namespace algo::terminal
