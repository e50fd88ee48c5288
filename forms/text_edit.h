#pragma once

// A line of free text, whose value changes with each key.

#include <string>
#include <string_view>

#include "forms/editor.h"

namespace algo::forms {

/// A line of free text. As a pop-up edit (account, symbol) it is served by a host editor.
class ALGO_SHARED TTextEdit : public TEditor {
 public:
  TTextEdit(TFrame& frame, std::string name);

  std::string Text() const override { return FText; }
  void SetText(std::string_view text) override;

 protected:
  bool Accepts(std::string_view typed, char key) const override;
  void SetTyped(std::string typed) override;
  void KeyIn(std::string typed) override;

 private:
  std::string FText;
};

}  // namespace algo::forms
