#pragma once

// The controls that hold what is typed. All of them may be empty. An edit's text is its value, so it changes
// with each key; numbers and date-times are made of what was typed when the editor is left, and until then
// the value stays what it was.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "forms/control.h"
#include "text/date_text.h"

namespace algo::forms {

/// What the editors have in common: keys come in one at a time, and the whole text can be selected.
class ALGO_SHARED TEditor : public TControl {
 public:
  TEditor(TFrame& frame, std::string name, TControlKind kind);

  /// Assigns the text, as the program's own hand: no bound and no exit rule is applied.
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

 protected:
  /// Whether `key` may stand behind `typed`.
  virtual bool Accepts(std::string_view typed, char key) const = 0;
  /// Takes `typed` as what stands in the editor while the trader is typing.
  virtual void SetTyped(std::string typed) = 0;

 private:
  friend class TFrame;

  std::string FPlaceholder;
  bool FAllSelected = false;
};

/// A line of free text. As a pop-up edit (account, symbol) it is served by a host editor.
class ALGO_SHARED TTextEdit : public TEditor {
 public:
  TTextEdit(TFrame& frame, std::string name);

  std::string Text() const override { return FText; }
  void SetText(std::string_view text) override;

 protected:
  bool Accepts(std::string_view typed, char key) const override;
  void SetTyped(std::string typed) override;

 private:
  std::string FText;
};

/// What a spin edit accepts and how it shows it.
struct TNumberFormat {
  bool whole = false;          ///< digits only, no decimal point
  bool grouped = false;        ///< with thousands separators
  std::int32_t decimals = -1;  ///< decimals shown at most; -1 shows all of them

  bool operator==(const TNumberFormat&) const = default;
};

/// A number or nothing. Values that the program assigns are taken as they are, so that one outside the bounds
/// is shown and can be refused with a message; what the trader types is bent to the nearer bound. A number
/// that is not finite counts as nothing.
class ALGO_SHARED TSpinEdit : public TEditor {
 public:
  TSpinEdit(TFrame& frame, std::string name);

  std::optional<double> Value() const { return FValue; }
  void SetValue(std::optional<double> value);

  /// The text being typed, else the value in the editor's format.
  std::string Text() const override;
  /// Assigns the number that `text` shows; an empty text empties the value, a text that is no number changes
  /// nothing.
  void SetText(std::string_view text) override;

  std::optional<double> Min() const { return FMin; }
  std::optional<double> Max() const { return FMax; }
  void SetMin(std::optional<double> min);
  void SetMax(std::optional<double> max);
  double Step() const { return FStep; }
  void SetStep(double step);
  const TNumberFormat& Format() const { return FFormat; }
  void SetFormat(const TNumberFormat& format);

 protected:
  bool Accepts(std::string_view typed, char key) const override;
  void SetTyped(std::string typed) override;
  void TakeUp() override;

 private:
  std::optional<double> FValue;
  std::optional<double> FMin;
  std::optional<double> FMax;
  std::optional<std::string> FTyped;
  TNumberFormat FFormat;
  double FStep = 1;
};

/// A date with a time of day, or nothing, shown as "YYYY-MM-DD HH:MM:SS".
class ALGO_SHARED TDateEdit : public TEditor {
 public:
  TDateEdit(TFrame& frame, std::string name);

  std::optional<text::TDateTime> Value() const { return FValue; }
  void SetValue(std::optional<text::TDateTime> value);

  /// Whether a day picked from a calendar keeps the time of day that stands in the editor; else it means
  /// midnight.
  bool PickKeepsTime() const { return FPickKeepsTime; }
  void SetPickKeepsTime(bool keeps) { FPickKeepsTime = keeps; }

  std::string Text() const override;
  /// Assigns the date-time that `text` shows (a lone date means midnight); any other text empties the editor.
  void SetText(std::string_view text) override;

 protected:
  bool Accepts(std::string_view typed, char key) const override;
  void SetTyped(std::string typed) override;
  void TakeUp() override;

 private:
  std::optional<text::TDateTime> FValue;
  std::optional<std::string> FTyped;
  bool FPickKeepsTime = false;
};

}  // namespace algo::forms
