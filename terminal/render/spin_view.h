#pragma once

// A number that buttons, keys and the mouse wheel step. It may be empty, and typed text stays as typed until
// the focus leaves.

#include <QAbstractSpinBox>

#include "terminal/render/control_view.h"

namespace algo::terminal::render {

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

}  // namespace algo::terminal::render
