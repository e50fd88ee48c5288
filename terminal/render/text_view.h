#pragma once

// A line of text; accounts and symbols offer completions in a list below it.

#include <QLineEdit>

#include "terminal/render/control_view.h"

namespace algo::terminal::render {

class TTextView final : public TControlView {
 public:
  TTextView(forms::TTextEdit& control, const TFrameInput& input, const TEditorAssist& assist,
            QWidget& parent);

  QWidget& Widget() const override { return FLine; }
  QString ShownText() const override { return FLine.text(); }
  QString SelectedText() const override { return FLine.selectedText(); }

 protected:
  void Show() override;

 private:
  QLineEdit& FLine;
};

}  // namespace algo::terminal::render
