#include "terminal/render/text_view.h"

#include <QKeyEvent>

#include "terminal/render/completion_list.h"
#include "terminal/render/editor_line.h"

namespace algo::terminal::render {

namespace {

/// While the completion list is open, it forwards keys past every event filter; Enter has to work
/// nevertheless.
class TLine final : public QLineEdit {
 public:
  TLine(forms::TTextEdit& editor, const TFrameInput& input, QWidget& parent)
      : QLineEdit(&parent), FEditor(editor), FInput(input) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && FInput.Frame() && !EnterMeansCompletion(*this)) {
      FInput.Enter(FEditor);
    } else {
      QLineEdit::keyPressEvent(event);
    }
  }

 private:
  forms::TTextEdit& FEditor;
  const TFrameInput& FInput;
};

}  // namespace

TTextView::TTextView(forms::TTextEdit& control, const TFrameInput& input, const TEditorAssist& assist,
                     QWidget& parent)
    : TControlView(control), FLine(*new TLine(control, input, parent)) {
  BindLine(FLine, control, input);
  OfferCompletions(FLine, control, input, assist);
}

void TTextView::Show() { ShowInLine(FLine, static_cast<const forms::TEditor&>(Control())); }

}  // namespace algo::terminal::render
