#pragma once

// Check boxes, and buttons in the skin's colours, some of which stay down.

#include <QAbstractButton>

#include "forms/choices.h"
#include "terminal/render/control_view.h"

namespace algo::terminal::render {

class TCheckView final : public TControlView {
 public:
  TCheckView(forms::TCheckBox& control, const TFrameInput& input, QWidget& parent);

  QWidget& Widget() const override { return FBox; }
  QString ShownText() const override { return FBox.text(); }
  bool Checked() const { return FBox.isChecked(); }

 protected:
  void Show() override;

 private:
  QAbstractButton& FBox;
};

class TButtonView final : public TControlView {
 public:
  TButtonView(forms::TButton& control, const TFrameInput& input, QWidget& parent);

  QWidget& Widget() const override { return FButton; }
  QString ShownText() const override { return FButton.text(); }
  bool Pressed() const { return FButton.isChecked(); }

 protected:
  void Show() override;

 private:
  void ShowColor(const forms::TButton& control, bool down);

  QAbstractButton& FButton;
};

}  // namespace algo::terminal::render
