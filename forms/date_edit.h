#pragma once

// A date with a time of day, or nothing, typed as text or picked from a calendar by the day.

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "forms/editor.h"
#include "text/date_text.h"

namespace algo::forms {

/// A date with a time of day, or nothing, shown as "YYYY-MM-DD HH:MM:SS".
class ALGO_SHARED TDateEdit : public TEditor {
 public:
  TDateEdit(TFrame& frame, std::string name);

  std::optional<text::TDateTime> Value() const { return FValue; }
  void SetValue(std::optional<text::TDateTime> value);

  /// The date-time that leaving the editor now would make of what stands in it.
  std::optional<text::TDateTime> EnteredValue() const;

  /// Whether a day picked from a calendar keeps the time of day that stands in the editor; else it means
  /// midnight.
  bool PickKeepsTime() const { return FPickKeepsTime; }
  void SetPickKeepsTime(bool keeps) { FPickKeepsTime = keeps; }

  std::string Text() const override;
  /// The value as text, whatever is being typed; empty for none.
  std::string ValueText() const;
  /// Assigns the date-time that `text` shows (a lone date means midnight); any other text empties the editor.
  void SetText(std::string_view text) override;

 protected:
  bool Accepts(std::string_view typed, char key) const override;
  void SetTyped(std::string typed) override;
  void TakeUp() override;

 private:
  friend class TFrame;

  /// Puts the picked day into the editor, with the time of day that goes with it, as if it had been typed.
  void PickDay(std::chrono::local_days day);

  std::optional<text::TDateTime> FValue;
  std::optional<std::string> FTyped;
  bool FPickKeepsTime = false;
};

}  // namespace algo::forms
