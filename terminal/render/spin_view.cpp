#include "terminal/render/spin_view.h"

#include <QLineEdit>
#include <QPointer>
#include <QWheelEvent>
#include <algorithm>

#include "terminal/render/editor_line.h"
#include "text/number_text.h"

namespace algo::terminal::render {

namespace {

/// The number in the editor, typed or committed; 0 if there is none.
double NumberIn(const forms::TSpinEdit& editor) {
  std::string digits = editor.Text();
  std::erase(digits, ',');
  return text::ParseNumber(digits).value_or(editor.Value().value_or(0));
}

}  // namespace

class TSpinView::TBox final : public QAbstractSpinBox {
 public:
  TBox(forms::TSpinEdit& editor, const TFrameInput& input, const TEditorAssist& assist, QWidget& parent)
      : QAbstractSpinBox(&parent), FEditor(editor), FInput(input), FAssist(assist) {
    BindLine(Line(), editor, input);
    setAlignment(Qt::AlignRight);
  }

  QLineEdit& Line() const { return *lineEdit(); }

  QValidator::State validate(QString& text, int& position) const override {
    return Line().validator()->validate(text, position);
  }

  void fixup(QString& /*text*/) const override {}

  void stepBy(int steps) override {
    if (!FInput.Frame() || FEditor.ReadOnly()) return;
    double value = FAssist.Stepped(FEditor, NumberIn(FEditor), steps);
    if (const auto max = FEditor.Max()) value = std::min(value, *max);
    if (const auto min = FEditor.Min()) value = std::max(value, *min);
    const forms::TNumberFormat& format = FEditor.Format();
    // Steps of a hundredth add up to doubles with rounding errors in the last digits.
    constexpr std::int32_t StepDecimals = 7;
    std::string text = text::GroupedNumber(value, StepDecimals);
    if (!format.grouped) std::erase(text, ',');
    const QPointer<TBox> alive(this);
    if (FInput.Typed(FEditor, ToQt(text)) && alive) Line().selectAll();
  }

 protected:
  StepEnabled stepEnabled() const override {
    return FEditor.ReadOnly() ? StepNone : StepUpEnabled | StepDownEnabled;
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
  const TEditorAssist& FAssist;
};

TSpinView::TSpinView(forms::TSpinEdit& control, const TFrameInput& input, const TEditorAssist& assist,
                     QWidget& parent)
    : TControlView(control), FBox(*new TBox(control, input, assist, parent)) {}

QWidget& TSpinView::Widget() const { return FBox; }

QString TSpinView::ShownText() const { return FBox.Line().text(); }

QString TSpinView::SelectedText() const { return FBox.Line().selectedText(); }

void TSpinView::Show() {
  ShowInLine(FBox.Line(), static_cast<const forms::TEditor&>(Control()));
  FBox.setReadOnly(Control().ReadOnly());
}

}  // namespace algo::terminal::render
