#include "terminal/render/editor_line.h"

#include <QPointer>
#include <QValidator>
#include <algorithm>

namespace algo::terminal::render {

namespace {

class TAcceptedText final : public QValidator {
 public:
  TAcceptedText(const forms::TEditor& editor, const TFrameInput& input, QObject* parent)
      : QValidator(parent), FEditor(editor), FInput(input) {}

  State validate(QString& text, int& position) const override {
    if (!FInput.Frame()) return Invalid;
    const std::string put = FromQt(text);
    const std::string taken = FEditor.Pasted(put);
    if (!FEditor.AcceptsText(taken)) return Invalid;
    // A text that is pasted, dropped or typed reaches the line alike; what the editor leaves out of it must
    // not stand there.
    if (taken != put) {
      text = ToQt(taken);
      position = std::min(position, static_cast<int>(text.size()));
    }
    return Acceptable;
  }

 private:
  const forms::TEditor& FEditor;
  const TFrameInput& FInput;
};

}  // namespace

void BindLine(QLineEdit& line, forms::TEditor& editor, const TFrameInput& input) {
  line.setValidator(new TAcceptedText(editor, input, &line));
  QObject::connect(&line, &QLineEdit::textEdited, &line, [&line, &editor, &input](const QString& text) {
    const QPointer<QLineEdit> alive(&line);
    if (!input.Typed(editor, text) && alive && input.Frame()) ShowInLine(line, editor);
  });
}

void ShowInLine(QLineEdit& line, const forms::TEditor& editor) {
  const QString text = ToQt(editor.Text());
  if (line.text() != text) line.setText(text);
  if (!editor.SelectedText().empty() && line.selectedText() != text) line.selectAll();
  const QString placeholder = ToQt(editor.Placeholder());
  if (line.placeholderText() != placeholder) line.setPlaceholderText(placeholder);
  line.setReadOnly(editor.ReadOnly());
}

}  // namespace algo::terminal::render
