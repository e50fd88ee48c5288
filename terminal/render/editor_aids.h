#pragma once

// What a renderer asks of the terminal to help the trader type: matching accounts and symbols, and the steps
// of prices and quantities. What the terminal knows of a control it knows from its editor service; the
// renderer knows none of it.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "forms/editors.h"

namespace algo::terminal::render {

/// One entry of a completing list: what is put into the editor, and what is shown beside it.
struct TCompletion {
  std::string text;
  std::string note;
};

class TEditorAids {
 public:
  virtual ~TEditorAids();

  /// What may be meant by `typed` in that editor, best first; empty for an editor that offers nothing.
  virtual std::vector<TCompletion> Completions(const forms::TTextEdit& editor, std::string_view typed) const;

  /// The value `steps` steps (negative: down) from `value`, not yet held to the editor's bounds. Goes by the
  /// editor's own step unless the terminal knows better.
  virtual double Stepped(const forms::TSpinEdit& editor, double value, std::int32_t steps) const;
};

}  // namespace algo::terminal::render
