#pragma once

// The help that the terminal gives with typing: matching accounts and symbols, and the steps of prices and
// quantities. The terminal knows from its editor service what a control is for; the renderer does not know.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "forms/editors.h"

namespace algo::terminal::render {

/// One entry of a completion list: the text that is put into the editor, and a note that is shown beside it.
struct TCompletion {
  std::string text;
  std::string note;
};

class TEditorAssist {
 public:
  virtual ~TEditorAssist();

  /// The completions of `typed` in that editor, best first; empty for an editor without completions.
  virtual std::vector<TCompletion> Completions(const forms::TTextEdit& editor, std::string_view typed) const;

  /// The value `steps` steps (negative: down) from `value`, not yet limited to the editor's bounds. Uses the
  /// editor's own step unless the terminal overrides it.
  virtual double Stepped(const forms::TSpinEdit& editor, double value, std::int32_t steps) const;
};

}  // namespace algo::terminal::render
