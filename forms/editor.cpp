#include "forms/editor.h"

#include <utility>

namespace algo::forms {

TEditor::TEditor(TFrame& frame, std::string name, TControlKind kind)
    : TControl(frame, std::move(name), kind) {}

void TEditor::SetPlaceholder(std::string placeholder) {
  if (FPlaceholder == placeholder) return;
  FPlaceholder = std::move(placeholder);
  AppearanceChanged();
}

bool TEditor::AcceptsText(std::string_view text) const {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!Accepts(text.substr(0, i), text[i])) return false;
  }
  return true;
}

void TEditor::SelectAll() {
  FAllSelected = true;
  AppearanceChanged();
}

void TEditor::MoveCaretToEnd() {
  if (!FAllSelected) return;
  FAllSelected = false;
  AppearanceChanged();
}

std::string TEditor::SelectedText() const { return FAllSelected ? Text() : std::string(); }

}  // namespace algo::forms
