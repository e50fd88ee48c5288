#pragma once

// What the controls that hold typed text have in common. All of them may be empty. What one of them makes of
// the text is its own business: a text editor's text is its value, numbers and date-times are made of what
// was typed when the editor is left.

#include <string>
#include <string_view>
#include <utility>

#include "forms/control.h"

namespace algo::forms {

/// A control that is typed into. Keys come in one at a time, and the whole text can be selected.
class ALGO_SHARED TEditor : public TControl {
 public:
  TEditor(TFrame& frame, std::string name, TControlKind kind);

  /// Assigns the text on the program's behalf: no bound and no exit rule is applied.
  virtual void SetText(std::string_view text) = 0;

  /// The grey text shown while the editor is empty.
  const std::string& Placeholder() const { return FPlaceholder; }
  void SetPlaceholder(std::string placeholder);

  /// Whether every character of `text` may stand where it stands, as if it were keyed in from the start.
  bool AcceptsText(std::string_view text) const;

  void SelectAll();
  /// Puts the caret behind the last character, which ends any selection.
  void MoveCaretToEnd();
  /// The selected text, empty when nothing is.
  std::string SelectedText() const;
  /// What would be taken of a text that is put in as a whole; AcceptsText says of that whether it is taken.
  virtual std::string Pasted(std::string_view text) const { return Normalized(text); }

 protected:
  /// The text with the characters that the editor keeps in place of others that mean the same.
  virtual std::string Normalized(std::string_view text) const { return std::string(text); }
  /// Whether `key` may stand behind `typed`.
  virtual bool Accepts(std::string_view typed, char key) const = 0;
  /// Takes `typed` as what stands in the editor while the trader is typing.
  virtual void SetTyped(std::string typed) = 0;
  /// Takes `typed` as keyed in key by key in place of what stood there. An editor whose value changes with
  /// each key overrides it.
  virtual void KeyIn(std::string typed) { SetTyped(std::move(typed)); }

 private:
  friend class TFrame;

  std::string FPlaceholder;
  bool FAllSelected = false;
};

}  // namespace algo::forms
