#pragma once

// A date with a time of day, or empty: typed in one line, or the day picked from a calendar.

#include <QLineEdit>
#include <QToolButton>

#include "terminal/render/control_view.h"

namespace algo::terminal::render {

class TDateView final : public TControlView {
 public:
  TDateView(forms::TDateEdit& control, const TFrameInput& input, QWidget& parent);

  QWidget& Widget() const override { return FContainer; }
  QWidget& Input() const override { return FLine; }
  QString ShownText() const override { return FLine.text(); }
  QString SelectedText() const override { return FLine.selectedText(); }

 protected:
  void Show() override;

 private:
  void OpenCalendar();

  const TFrameInput& FInput;
  QWidget& FContainer;
  QLineEdit& FLine;
  QToolButton& FButton;
};

}  // namespace algo::terminal::render
