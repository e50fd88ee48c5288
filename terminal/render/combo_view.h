#pragma once

// A fixed list from which the trader picks an item.

#include <QComboBox>

#include "terminal/render/control_view.h"

namespace algo::terminal::render {

class TComboView final : public TControlView {
 public:
  TComboView(forms::TComboBox& control, const TFrameInput& input, QWidget& parent);

  QWidget& Widget() const override { return FBox; }
  QString ShownText() const override { return FBox.currentText(); }

 protected:
  void Show() override;

 private:
  void ShowItems(const forms::TComboBox& control);

  QComboBox& FBox;
};

}  // namespace algo::terminal::render
