#pragma once

// The help that the terminal gives with typing: matching accounts and symbols. The terminal knows from its
// editor service what a control is for; the renderer does not know.

#include <string>
#include <string_view>
#include <vector>

#include "forms/text_edit.h"

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
};

}  // namespace algo::terminal::render
