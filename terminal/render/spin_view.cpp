#include "terminal/render/spin_view.h"

#include <QLineEdit>
#include <QWheelEvent>

#include "terminal/render/editor_line.h"

namespace algo::terminal::render {

class TSpinView::TBox final : public QAbstractSpinBox {
 public:
  TBox(forms::TSpinEdit& editor, const TFrameInput& input, QWidget& parent)
      : QAbstractSpinBox(&parent), FEditor(editor), FInput(input) {
    BindLine(Line(), editor, input);
    setAlignment(Qt::AlignRight);
  }

  QLineEdit& Line() const { return *lineEdit(); }

  QValidator::State validate(QString& text, int& position) const override {
    return Line().validator()->validate(text, position);
  }

  void fixup(QString& /*text*/) const override {}

  void stepBy(int steps) override { FInput.Step(FEditor, steps); }

 protected:
  StepEnabled stepEnabled() const override {
    return !FInput.Frame() || FEditor.ReadOnly() ? StepNone : StepUpEnabled | StepDownEnabled;
  }

  void wheelEvent(QWheelEvent* event) override {
    // Scrolling past a field must not change it.
    if (hasFocus()) {
      QAbstractSpinBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }

 private:
  forms::TSpinEdit& FEditor;
  const TFrameInput& FInput;
};

TSpinView::TSpinView(forms::TSpinEdit& control, const TFrameInput& input, QWidget& parent)
    : TControlView(control), FBox(*new TBox(control, input, parent)) {}

QWidget& TSpinView::Widget() const { return FBox; }

QString TSpinView::ShownText() const { return FBox.Line().text(); }

QString TSpinView::SelectedText() const { return FBox.Line().selectedText(); }

void TSpinView::Show() {
  ShowInLine(FBox.Line(), static_cast<const forms::TEditor&>(Control()));
  FBox.setReadOnly(Control().ReadOnly());
}

}  // namespace algo::terminal::render
