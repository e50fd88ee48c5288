#include "forms/text_edit.h"

#include <utility>

namespace algo::forms {

TTextEdit::TTextEdit(TFrame& frame, std::string name) : TEditor(frame, std::move(name), TControlKind::Edit) {}

void TTextEdit::SetText(std::string_view text) {
  if (FText == text) return;
  FText = text;
  ValueChanged();
}

bool TTextEdit::Accepts(std::string_view /*typed*/, char key) const {
  return static_cast<unsigned char>(key) >= 0x20 && key != 0x7F;
}

void TTextEdit::SetTyped(std::string typed) { SetText(typed); }

void TTextEdit::KeyIn(std::string typed) {
  const std::string_view keys = typed;
  SetText(keys.substr(0, 1));
  for (const char key : keys.substr(keys.empty() ? 0 : 1)) {
    FText += key;
    ValueChanged();
  }
}

}  // namespace algo::forms
